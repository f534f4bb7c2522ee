#pragma once

#include <string>
#include <vector>

#include "tasks/EntryFields.h"

/// How entries are written, one after the other, as one document.
class EntryLayout {
public:
    EntryLayout() = default;
    EntryLayout(const EntryLayout&) = delete;
    EntryLayout& operator=(const EntryLayout&) = delete;
    virtual ~EntryLayout();

    /// What stands before the first entry, and behind the last.
    /// @{
    virtual std::string head(const std::string& title);
    virtual std::string foot();
    /// @}
    /// What stands between two entries.
    virtual std::string separator() const;
    /// One entry of a file.
    virtual std::string entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) = 0;
};

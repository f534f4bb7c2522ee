#pragma once

#include <string>
#include <vector>

#include "output/DocumentLayout.h"
#include "tasks/EntryFields.h"

/// How entries are written, one after the other, as one document.
class EntryLayout : public virtual DocumentLayout {
public:
    ~EntryLayout() override;

    /// Lays out one entry of a file, which add() takes up.
    virtual LaidOutPart entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) = 0;
};

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "entries/EntryReader.h"
#include "entries/Splice.h"

/// The bytes of a CIF file while they are edited: each change can be undone and done again.
class EditSession {
public:
    /// Throws CifError.
    explicit EditSession(std::string bytes);

    /// As they were at first, and as they are now.
    /// @{
    const std::string& original() const { return original_; }
    const std::string& bytes() const { return *bytes_; }
    /// @}
    bool is_changed() const { return *bytes_ != original_; }
    /// The entries as they are now; valid until the next change.
    const EntryReader& entries() const { return *entries_; }

    /// Does a change of the present bytes and forgets what was undone; nothing for none. Throws
    /// CifError where the result is not a CIF file, and then nothing is changed.
    void apply(Splices change);
    /// False where there is nothing to undo, or to do again.
    /// @{
    bool undo();
    bool redo();
    /// @}
    /// The changes that are done, in their order.
    std::vector<Splices> changes() const;

private:
    void replace(std::string bytes);

    std::string original_;
    std::unique_ptr<std::string> bytes_;  // the entries refer to them
    std::unique_ptr<EntryReader> entries_;
    std::vector<Splices> changes_;  // those that are done, then those that were undone
    std::size_t done_ = 0;
};

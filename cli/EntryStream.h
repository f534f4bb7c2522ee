#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/EntryFile.h"
#include "cli/Places.h"

/// The entries of several CIF files, one after the other. What cannot be read is reported.
class EntryStream {
public:
    /// With the name of a block, that of the first file alone is read; that it is not there is
    /// reported.
    explicit EntryStream(std::vector<Place> places, std::string block = "")
        : places_(std::move(places)), block_(std::move(block)) {}

    /// Reads the next entry, which lives until the next call; null at the end.
    const CifEntry* next();

    /// The file of the last entry.
    const std::string& path() const { return file_->path(); }
    /// How many entries there have been so far.
    unsigned long count() const { return count_; }
    /// Whether no error has been reported so far.
    bool good() const { return good_; }

    /// How many places there are, and how many have been read, the last perhaps in part.
    /// @{
    std::size_t places() const { return places_.size(); }
    double places_read() const;
    /// @}

private:
    bool open_next();
    bool is_wanted();

    std::vector<Place> places_;
    std::string block_;                // whose case does not count; empty: all
    std::vector<std::string> others_;  // the names of other blocks, where one is wanted
    std::size_t next_place_ = 0;
    std::unique_ptr<EntryFile> file_;  // null: before the first, and behind one that has ended
    std::optional<CifEntry> entry_;
    unsigned long count_ = 0;
    bool good_ = true;
};

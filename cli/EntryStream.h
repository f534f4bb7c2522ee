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
    explicit EntryStream(std::vector<Place> places) : places_(std::move(places)) {}

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

    std::vector<Place> places_;
    std::size_t next_place_ = 0;
    std::unique_ptr<EntryFile> file_;  // null: before the first, and behind one that has ended
    std::optional<CifEntry> entry_;
    unsigned long count_ = 0;
    bool good_ = true;
};

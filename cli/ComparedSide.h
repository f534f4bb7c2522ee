#pragma once

#include <optional>
#include <span>
#include <string>

#include "cli/EntryStream.h"
#include "tasks/EntryTexts.h"

/// One side of a comparison as users name it: a CIF file, a folder with such, or one block of a
/// file, FILE:BLOCK. What exists as it is named is no block.
class ComparedSide {
public:
    ComparedSide(const std::string& name, bool recursive);

    bool is_folder() const { return is_folder_; }
    bool is_block() const { return !block_.empty(); }
    /// Its files, and what was wrong where files were looked for.
    const std::vector<Place>& places() const { return places_; }

    /// Reads what is wanted of the next entry; none at the end.
    std::optional<EntryTexts> next(std::span<const Field> wanted);
    /// The name of the last entry's file in the folder, or of a single file alone, without ".gz".
    std::string file_in_folder() const;
    const EntryStream& stream() const { return *stream_; }

private:
    std::string path_;
    std::string block_;
    bool is_folder_ = false;
    std::vector<Place> places_;
    std::optional<EntryStream> stream_;
};

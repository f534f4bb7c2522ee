#pragma once

#include <optional>
#include <string>

#include "cli/InputFile.h"
#include "entries/EntryReader.h"

/// The entries of a CIF file, of which one after the other is read. A file that is not CIF and the
/// items that cannot be read are reported.
class EntryFile {
public:
    /// Reads the bytes of the file, "-" for standard input; of one that does not begin as a CIF
    /// file does only the beginning.
    explicit EntryFile(const std::string& path);

    /// Reads the next entry, which refers to this file; false at the end.
    bool next(std::optional<CifEntry>& entry);
    /// Whether no error has been reported so far; doubts about what was read are none.
    bool good() const { return good_; }

private:
    void refuse(const std::string& message);

    std::string path_;
    std::string bytes_;
    std::optional<EntryReader> reader_;
    std::size_t next_ = 0;
    bool good_ = true;
};

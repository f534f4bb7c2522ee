#pragma once

#include <optional>
#include <string>

#include "cli/InputFile.h"
#include "entries/EntryReader.h"

/// The entries of a CIF file, of which one after the other is read.
class EntryFile {
public:
    /// Reads the bytes of the file, "-" for standard input; of one that does not begin as a CIF
    /// file does only the beginning.
    explicit EntryFile(const std::string& path);
    EntryFile(const EntryFile&) = delete;
    EntryFile& operator=(const EntryFile&) = delete;

    const std::string& path() const { return path_; }

    /// Reads the next entry, which refers to this file and whose problems name it; false at the
    /// end.
    bool next(std::optional<CifEntry>& entry);
    /// Why there are no entries, or not all of them; none when nothing is wrong.
    const std::optional<Problem>& problem() const { return problem_; }
    /// Why it is no CIF file; none where it is, or nothing is known of that.
    const std::optional<CifError>& cif_error() const { return cif_error_; }
    /// All entries, or null where there is a problem.
    const EntryReader* entries() const { return reader_ ? &*reader_ : nullptr; }
    /// As they were read, those of a gzip file unpacked.
    const std::string& bytes() const { return bytes_; }
    bool is_packed() const { return is_packed_; }
    /// How much of the file has been read, from 0 to 1.
    double part_read() const;

private:
    void refuse(const std::string& message);

    std::string path_;
    std::string bytes_;
    bool is_packed_ = false;
    std::optional<EntryReader> reader_;
    std::optional<CifError> cif_error_;
    std::size_t next_ = 0;
    std::optional<Problem> problem_;
};

#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "cli/GzipReader.h"

/// A file cannot be opened or read to its end; what() names it and says why.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file, or standard input, that is read from its beginning to its end; a gzip file is unpacked.
class InputFile {
public:
    /// Opens `path`, or standard input for "-"; throws InputError.
    explicit InputFile(const std::string& path);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    /// The path, "<stdin>", or "''" for an empty path.
    const std::string& name() const { return name_; }

    /// Appends what is at hand, up to a quarter of a megabyte; waits for the first byte. Returns
    /// whether there was any: the file has not ended. Throws InputError, also when the file has
    /// shrunk, and for a gzip file that ends too early or for which GzipReader throws.
    bool read(std::string& bytes);

    /// Whether it is a gzip file, once something has been read: it begins as one does.
    bool is_packed() const { return gzip_.has_value(); }

private:
    std::size_t read_beginning();
    std::size_t read_piece(std::size_t offset);
    bool unpack(std::string& bytes);

    std::string name_;
    std::unique_ptr<char[]> buffer_;
    std::size_t buffer_size_ = 0;
    int descriptor_;
    off_t size_ = 0;  // when it was opened
    bool begun_ = false;
    std::optional<GzipReader> gzip_;
};

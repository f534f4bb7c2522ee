#pragma once

#include <cstddef>
#include <string>
#include <system_error>

/// A file cannot be opened or read; what() names it.
class InputError : public std::system_error {
public:
    using std::system_error::system_error;
};

/// A file, or standard input, that is read from its begin to its end.
class InputFile {
public:
    /// Opens `path`, or standard input for "-"; throws InputError.
    explicit InputFile(const std::string& path);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    /// The path, or "<stdin>".
    const std::string& name() const { return name_; }

    /// Appends what is at hand, up to `size` bytes; waits for the first. Returns whether there was
    /// any: the file has not ended. Throws InputError.
    bool read(std::string& bytes, std::size_t size);

private:
    std::string name_;
    int descriptor_;
};

/// All bytes of a file; throws InputError.
std::string read_whole_file(const std::string& path);

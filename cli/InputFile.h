#pragma once

#include <sys/types.h>

#include <memory>
#include <stdexcept>
#include <string>

/// A file cannot be opened or read to its end; what() names it and says why.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file, or standard input, that is read from its beginning to its end.
class InputFile {
public:
    /// Opens `path`, or standard input for "-"; throws InputError.
    explicit InputFile(const std::string& path);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    /// The path, "<stdin>", or "''" for an empty path.
    const std::string& name() const { return name_; }

    /// Appends what is at hand, up to a megabyte; waits for the first byte. Returns whether there
    /// was any: the file has not ended. Throws InputError, also when the file has shrunk.
    bool read(std::string& bytes);

private:
    std::string name_;
    std::unique_ptr<char[]> buffer_;
    int descriptor_;
    off_t size_ = 0;  // when it was opened
};

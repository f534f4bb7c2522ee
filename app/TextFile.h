#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <system_error>

/// A file cannot be opened or read; what() names it.
class InputError : public std::system_error {
public:
    using std::system_error::system_error;
};

/// A file of texts, each ended by a separator, that is read in the memory of one text.
class TextFile {
public:
    /// Opens `path`, or standard input for "-"; throws InputError.
    TextFile(const std::string& path, char separator);
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;
    ~TextFile();

    /// The path, or "<stdin>".
    const std::string& name() const { return name_; }
    /// The number of the text read last, from 1; 0 before the first.
    unsigned long number() const { return number_; }

    /// Reads the next text, without its separator, which the last one may lack; false at the end.
    /// The text is valid until the next call. Throws InputError.
    bool next(std::string_view& text);

private:
    std::string name_;
    char separator_;
    std::FILE* file_;
    char* buffer_ = nullptr;
    std::size_t capacity_ = 0;
    unsigned long number_ = 0;
};

/// All bytes of a file; throws InputError.
std::string read_whole_file(const std::string& path);

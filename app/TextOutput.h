#pragma once

#include <cstdio>
#include <string>
#include <string_view>

/// Standard output or a file to write to.
class TextOutput {
public:
    /// Standard output.
    TextOutput() : name_("standard output"), file_(stdout) {}
    /// Creates or empties the file; throws std::system_error.
    explicit TextOutput(const std::string& path);
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;
    ~TextOutput();

    /// All throw std::system_error; only after close() is everything written for certain.
    void write(std::string_view text);
    void flush();
    void close();

private:
    std::string name_;
    std::FILE* file_;
};

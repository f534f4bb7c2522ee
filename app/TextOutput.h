#pragma once

#include <cstdio>
#include <string>
#include <string_view>

/// Standard output or a file to write to. A file appears whole or not at all: it is written beside
/// its place and moved there when it is closed, and removed otherwise, on signals too. One at a
/// time.
class TextOutput {
public:
    /// Standard output.
    TextOutput() : name_("standard output"), file_(stdout) {}
    /// Begins a file that will replace what is at `path`; what is not a regular file, such as a
    /// device, is written to as it is. Throws std::system_error.
    explicit TextOutput(const std::string& path);
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;
    ~TextOutput();

    /// Whether the file at `path`, or standard input for "-", is the one that is written.
    bool is_at(const std::string& path) const;

    /// All throw std::system_error; only after close() is everything written for certain.
    void write(std::string_view text);
    void flush();
    void close();

private:
    std::string name_;
    std::string place_;      // where the file will stand
    std::string temporary_;  // where it is being written; empty: nowhere else
    std::FILE* file_;
};

#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "cli/TemporaryName.h"

struct stat;

/// So that files stay in their folder when the power fails; not all file systems can.
void sync_folder(const std::string& folder);

/// Standard output or a file to write to. A file appears whole or not at all: it is written without
/// a name, or beside the one that it replaces, gets its place when it is closed and is removed
/// otherwise, on signals too.
class TextOutput {
public:
    /// Standard output.
    TextOutput() : name_("standard output"), file_(stdout) {}
    /// Begins a file that will be at `path`, or where a link there leads. It has permissions, owner
    /// and group of the one that it replaces; where those cannot be kept no one may do more with
    /// it. What is not a regular file, such as a device, is written to as it is, and so is an open
    /// descriptor, such as /dev/stdout. Throws std::system_error.
    explicit TextOutput(const std::string& path);
    /// Begins a file that will be at `place` itself, be that a link or not, with permissions, owner
    /// and group of another; throws where these cannot be kept. To sync_folder() is left to those
    /// who may have written many files there. What is reported names it `name`.
    TextOutput(const std::string& name, const std::string& place, const struct stat& other);
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;
    ~TextOutput();

    /// Whether the file at `path`, or standard input for "-", is the one that is written.
    bool is_at(const std::string& path) const;

    /// Whether it is a terminal, where what is written tells by itself how far work is.
    bool is_terminal() const;

    /// All throw std::system_error; only after close() is everything written for certain.
    void write(std::string_view text);
    void flush();
    /// Has what was written so far stand on the disk.
    void sync();
    void close();

private:
    void begin_file(bool exists);
    void put_in_place();
    [[noreturn]] void give_up(const std::string& name);
    void remove();

    std::string name_;
    std::string place_;        // where the file will stand
    TemporaryName temporary_;  // where it is being written; empty: nowhere else
    bool lacks_name_ = false;  // until it is put in its place
    bool is_synced_ = false, syncs_folder_ = true;
    std::FILE* file_;
};

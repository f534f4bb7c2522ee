#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A file whose bytes become others in memory, and then all at once where it stands.
class EditedFile {
public:
    /// Reads the file; of one that does not begin as a CIF file only the beginning. Throws
    /// InputError, also for standard input, gzip files and what is no regular file.
    explicit EditedFile(const std::string& path);

    const std::string& path() const { return path_; }
    const std::string& bytes() const { return bytes_; }
    /// Where it stands, behind all links.
    const std::string& place() const { return place_; }
    /// Whether the other was, when it was read, the same file, by whatever name.
    bool is_same_as(const EditedFile& other) const;

    /// Makes `bytes` those of the file, whole or not at all, with its permissions, owner and group;
    /// with a backup, those that it had stand beside it under its name with "~". While this lasts
    /// no other process does the same. Leaves it to the caller to sync_folder(), for which other
    /// files may wait, too. Throws InputError where the file is not as it was read or another
    /// process is at it, and std::system_error; then it is as it was. For different files in
    /// several threads.
    void replace(std::string_view bytes, bool keeps_backup) const;

private:
    std::string path_, place_, bytes_;
    std::uint64_t device_ = 0, number_ = 0;  // of the file
};

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

/// What a process has taken.
struct ProcessCosts {
    double seconds;    ///< Of the processor.
    double megabytes;  ///< At its peak.
};

/// Runs a program with its output and its messages thrown away. Throws std::runtime_error where it
/// ends with more than that status.
ProcessCosts run_program(std::vector<std::string> arguments, int worst_status = 0);

/// Appends the CIF files of a folder, again and again until there are so many.
void append_files(std::vector<std::string>& arguments, const std::string& folder,
                  std::size_t count);

/// A file with these lines again and again, for as long as this lives.
class LinesFile {
public:
    LinesFile(const std::vector<std::string>& lines, std::size_t times);
    LinesFile(const LinesFile&) = delete;
    LinesFile& operator=(const LinesFile&) = delete;
    ~LinesFile() { std::filesystem::remove(path_); }

    std::string path() const { return path_; }
    double megabytes() const;

private:
    std::filesystem::path path_;
};

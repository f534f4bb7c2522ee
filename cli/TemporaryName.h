#pragma once

#include <cstddef>
#include <string>

/// The name of a file for as long as it is not yet in its place. Where a signal ends the program
/// meanwhile, the file is removed; at most 64 such names at a time, in any threads.
class TemporaryName {
public:
    TemporaryName() = default;
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;
    ~TemporaryName() { remove(); }

    /// Makes a file in a folder, with a name that none has there, and returns its descriptor; -1
    /// where it cannot, as errno tells. There must be no name so far.
    int make_file(const std::string& folder);
    /// Empty: there is none.
    const char* path() const;
    bool empty() const { return slot_ == none; }

    /// Gives the file another name, and has none then; false as errno tells.
    bool rename_to(const std::string& path);
    /// Removes the file, and then has no name.
    void remove();

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    void release();

    std::size_t slot_ = none;  // among the names that signals know
};

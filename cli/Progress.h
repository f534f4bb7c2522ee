#pragma once

#include <chrono>
#include <cstddef>
#include <string>

/// Tells on the terminal that standard error is how far work is that takes longer than a second:
/// one line, drawn again in its place at most ten times a second. One at a time, in one thread.
class Progress {
public:
    /// `what` is counted, in `files` files. Shows nothing unless `wanted`.
    Progress(bool wanted, std::string what, std::size_t files);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { hide(); }

    /// So many are done, and so many files read, the last perhaps in part.
    void update(unsigned long count, double files_read);

    /// Takes the line away until the next update: for those who write to standard error.
    static void hide();

private:
    using Clock = std::chrono::steady_clock;

    std::string line(unsigned long count, double files_read, double seconds) const;

    bool shows_;
    std::string what_;
    std::size_t files_;
    Clock::time_point begin_ = Clock::now();
    Clock::time_point next_ = begin_ + std::chrono::seconds(1);  // when to draw
};

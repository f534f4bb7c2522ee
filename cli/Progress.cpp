#include "cli/Progress.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace {

constexpr std::chrono::milliseconds between_drawings(100);
constexpr std::size_t usual_columns = 80;

std::size_t shown_columns = 0;  // of the line that stands on the terminal

std::size_t columns_of_terminal() {
    winsize size{};
    const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : usual_columns;
}

std::string whole(double number) { return std::to_string(std::llround(number)); }

}  // namespace

Progress::Progress(bool wanted, std::string what, std::size_t files)
    : shows_(wanted && isatty(STDERR_FILENO) != 0), what_(std::move(what)), files_(files) {}

void Progress::update(unsigned long count, double files_read) {
    if (!shows_) return;
    const Clock::time_point now = Clock::now();
    if (now < next_) return;
    next_ = now + between_drawings;
    std::string text = line(count, files_read, std::chrono::duration<double>(now - begin_).count());
    // A line that went on in the next one could not be drawn over.
    text.resize(std::min(text.size(), columns_of_terminal() - 1));
    hide();
    shown_columns = text.size();
    std::fwrite(text.data(), 1, text.size(), stderr);
}

void Progress::hide() {
    if (shown_columns == 0) return;
    const std::string blank = '\r' + std::string(std::exchange(shown_columns, 0), ' ') + '\r';
    std::fwrite(blank.data(), 1, blank.size(), stderr);
}

std::string Progress::line(unsigned long count, double files_read, double seconds) const {
    const auto all_files = static_cast<double>(files_);
    std::string text = std::to_string(count) + ' ' + what_ + ", " + whole(std::floor(files_read)) +
                       " of " + std::to_string(files_) + " files, " +
                       whole(static_cast<double>(count) / seconds) + " a second";
    if (files_read > 0) {
        text += ", " + whole(seconds * (all_files - files_read) / files_read) + " s left";
    }
    return text;
}

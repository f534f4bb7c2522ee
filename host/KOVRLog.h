#pragma once

#include <ostream>

/// The host's debug log. A line is written only while the log is open for the line's level.
class KOVRLog {
public:
    /// The log is open for the levels from `minimum_level_` to `level_`. Set both before other
    /// threads use the library: they are read without a lock.
    /// @{
    static int level_;
    static int minimum_level_;
    /// @}

    /// Whether lines of that level are wanted: ask before a line is begun.
    static bool is_open(int level) { return level_ >= level && minimum_level_ <= level; }

    /// Begins a line of the given level and yields the stream to write it to, which is the host's.
    static std::ostream& start_debug_line(int level);
    /// Ends the line begun last.
    static void end_debug_line();
};

#pragma once

#include <iosfwd>

/// A day of the calendar, or none.
struct Date {
    int year = 0;   ///< In full: 2004.
    int month = 0;  ///< 1 to 12.
    int day = 0;    ///< 1 to 31.

    /// Whether no day is given: all three are 0.
    bool is_null() const { return year == 0 && month == 0 && day == 0; }
    /// Writes "2004-07-09"; a year in the way of the stream's locale.
    void print(std::ostream& os) const;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const Date& date);

#pragma once

#include <limits>
#include <optional>
#include <string>

#include "tasks/numbers_in_text.h"

/// From a number to a number, both of it; or one, however many more digits a text has of it.
class NumberRange {
public:
    /// "2001-2004", "2001-", "-2004" or "2003"; numbers have no signs.
    static std::optional<NumberRange> read(const std::string& text);

    bool contains(const SearchedNumber& number) const;

private:
    double from_ = 0, to_ = std::numeric_limits<double>::infinity();
    std::string alone_;  // empty: a range
};

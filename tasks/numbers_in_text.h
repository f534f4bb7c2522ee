#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/StringSlice.h"

/// A number as a text writes it: "11.1412(3)".
struct SearchedNumber {
    StringSlice place;  ///< In the text, with the uncertainty and without a sign.
    /// The digits before and behind the point, and those in parentheses; empty where there are
    /// none. Parts of the text.
    /// @{
    std::string_view whole, decimals, uncertainty;
    /// @}
    bool is_negative = false;  ///< A "-" stands before it, and no letter or digit before that.

    double value() const;  ///< As it is written, without its sign.
    /// Whether it is the other number, or that one rounded: 11.141 of 11.1412(3), 11.14120 and
    /// 11.141(2). Of numbers with uncertainties these count too. Short whole numbers, 2, are no
    /// rounded ones, and signs count where this one has one.
    bool may_stand_for(const SearchedNumber& other) const;
    /// What the digits of each number that it may stand for begin with, zeros at the front aside;
    /// of these each has one.
    std::vector<std::string> first_digits() const;
};

/// All numbers of a text, from its front to its end; none begins within another. Its dashes are
/// folded. Refers to the text.
std::vector<SearchedNumber> numbers_in(std::string_view text);
/// The number that a text is as a whole, with its sign.
std::optional<SearchedNumber> whole_number(std::string_view text);

#pragma once

#include <optional>
#include <string_view>

#include "comparison/Formula.h"
#include "text/Position.h"

/// Goes through a formula and takes from it what is not a symbol. What is not there is not taken.
class FormulaScanner {
public:
    explicit FormulaScanner(std::string_view text) : text_(text) {}

    std::string_view text() const { return text_; }
    /// In bytes, of what is not yet taken.
    std::size_t position() const { return position_; }
    bool at_end() const { return position_ == text_.size(); }
    /// The character there, or '\0' at the end.
    char next() const { return at(position_); }
    /// What has been taken since then.
    StringSlice range_from(std::size_t from) const {
        return {to_position(from), to_position(position_)};
    }

    void take_character() { ++position_; }
    void take_blanks();
    /// A comma or a dot between moieties.
    bool take_separator();
    /// A term, or two with a sign between them, of which one is unknown: "2-x" is a count, and "2-"
    /// has a charge. Nothing there counts as one. In front of a moiety a comma may be the point.
    Formula::Count take_count(bool is_in_front);
    /// What take_count() takes, unless a charge stands there.
    Formula::Count take_count_without_charge();
    /// "2+", "-", "n+", "+2", with a blank, a separator or a closing bracket behind it.
    std::optional<Formula::Count> take_charge();

private:
    char at(std::size_t position) const { return position < text_.size() ? text_[position] : '\0'; }
    bool begins_fraction(bool is_in_front) const;
    std::optional<double> take_number(bool is_in_front);
    std::optional<Formula::Count> take_term(bool is_in_front);
    bool ends_unit();
    void take_digits();

    std::string_view text_;
    std::size_t position_ = 0;
};

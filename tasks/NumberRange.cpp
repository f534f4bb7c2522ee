#include "tasks/NumberRange.h"

#include "entries/read_whole.h"

std::optional<NumberRange> NumberRange::read(const std::string& text) {
    const std::size_t dash = text.find('-');
    NumberRange range;
    if (dash == std::string::npos) {
        range.alone_ = text;
        return whole_number(text) ? std::optional(range) : std::nullopt;
    }
    const std::string from = text.substr(0, dash), to = text.substr(dash + 1);
    if (!from.empty()) range.from_ = read_whole<double>(from).value_or(-1);
    if (!to.empty()) range.to_ = read_whole<double>(to).value_or(-1);
    const bool is_range = range.from_ >= 0 && range.from_ <= range.to_ && text.size() > 1;
    return is_range ? std::optional(range) : std::nullopt;
}

bool NumberRange::contains(const SearchedNumber& number) const {
    if (!alone_.empty()) return whole_number(alone_)->may_stand_for(number);
    return from_ <= number.value() && number.value() <= to_;
}

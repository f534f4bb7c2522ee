#include "entries/FieldPart.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>
#include <string_view>
#include <utility>

#include "entries/cif_text.h"
#include "entries/is_formula.h"
#include "entries/quantities.h"

namespace {

template <class Value>
std::string printed_text(const Value& value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value;
    return text.str();
}

bool has_digit(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

/// With its codes, of which the doubts are noted.
std::string text_as_written(BlockReader& block, const FieldPart& part) {
    const BlockReader::Value value = block.first_value(part.tags());
    if (!value) return "";
    std::string written = one_line(value.text, part.kind == FieldPart::name);
    if (CodedText::may_hold_codes(written)) block.note_doubts(value, CodedText(written));
    return written;
}

std::string list_of(BlockReader& block, Tags tags) {
    std::string list;
    for (const std::string_view tag : tags) {
        if (!list.empty()) break;
        for (const std::string& text : block.texts(tag)) {
            const std::string line = one_line(text);
            if (!list.empty() && !line.empty()) list += ", ";
            list += line;
        }
    }
    return list;
}

/// The text without the unit behind a number or a range.
std::string without_unit(const std::string& text, const FieldPart& part) {
    for (const std::string_view unit :
         {std::string_view(part.unit), part.other_units[0], part.other_units[1]}) {
        if (unit.empty() || !text.ends_with(unit)) continue;
        std::string number = one_line(std::string_view(text).substr(0, text.size() - unit.size()));
        if (is_number_or_range(number)) return number;
    }
    return text;
}

/// The fraction that so many per cent are, with as many places.
std::optional<std::string> fraction_of(const std::string& per_cent) {
    const std::optional<UncertainValue> number = read_number(per_cent);
    if (!number) return std::nullopt;
    return printed_text(
        UncertainValue{number->value / 100, number->uncertainty / 100, number->decimals + 2});
}

bool is_whole(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

bool is_number(const std::string& text) { return read_number(text).has_value(); }

bool is_number_of(const FieldPart& part, const std::string& text) {
    const std::optional<UncertainValue> number = read_number(text);
    return number && number->value > part.above && number->value < part.below;
}

/// "a number in K above 0".
std::string expected_number(const FieldPart& part, std::string text) {
    const std::string_view unit = *part.unit ? part.unit : part.other_units[0];
    if (!unit.empty()) text.append(" in ").append(unit);
    if (std::isfinite(part.above)) text.append(" above ").append(printed_text(part.above));
    if (std::isfinite(part.below)) text.append(" and below ").append(printed_text(part.below));
    return text;
}

std::optional<std::string> if_it(bool is_right, const std::string& text) {
    return is_right ? std::optional(text) : std::nullopt;
}

}  // namespace

std::string text_of(BlockReader& block, const FieldPart& part) {
    switch (part.kind) {
        case FieldPart::text:
        case FieldPart::name:
            return text_as_written(block, part);
        case FieldPart::words: {
            std::string text = block.first_decoded_text(part.tags());
            return is_number(text) ? "" : text;
        }
        case FieldPart::density: {
            const std::string text = block.first_decoded_text(part.tags());
            return has_digit(text) ? with_unit(text, part.unit) : "";
        }
        case FieldPart::printed:
        case FieldPart::count: {
            const std::string text = block.first_decoded_text(part.tags());
            return is_number(text) || part.kind == FieldPart::count ? normal_text(part, text) : "";
        }
        case FieldPart::per_cent: {
            const std::optional<double> number = read_per_cent(block, part.tags());
            return number ? printed_text(*number) : "";
        }
        case FieldPart::date:
            return normal_text(part, block.first_text(part.tags()));
        case FieldPart::numbers:
            return list_of(block, part.tags());
        case FieldPart::computed:
            return "";
        default: {
            std::string text = block.first_decoded_text(part.tags());
            return *part.unit ? with_unit(std::move(text), part.unit) : text;
        }
    }
}

std::string normal_text(const FieldPart& part, const std::string& text) {
    if (part.kind == FieldPart::date) {
        const std::optional<Date> date = read_date(text);
        return date ? printed_text(*date) : text;
    }
    std::string bare = without_unit(text, part);
    if (part.kind == FieldPart::printed) {
        const std::optional<UncertainValue> number = read_number(bare);
        return number ? printed_text(*number) : text;
    }
    return *part.unit ? with_unit(std::move(bare), part.unit) : bare;
}

std::optional<std::string> value_of(const FieldPart& part, const std::string& text,
                                    bool is_version_2) {
    const std::string bare = without_unit(text, part);
    switch (part.kind) {
        case FieldPart::text:
        case FieldPart::name:
            return is_version_2 ? text : CodedText(text).with_codes();
        case FieldPart::plain:
            return with_codes(text, is_version_2);
        case FieldPart::words:
            if (is_number(text)) return std::nullopt;
            return with_codes(text, is_version_2);
        case FieldPart::page:
            if (!has_digit(text) || text.find_first_of(" <>") != std::string::npos) {
                return std::nullopt;
            }
            return with_codes(text, is_version_2);
        case FieldPart::formula:
            return if_it(is_formula(text), text);
        case FieldPart::number:
        case FieldPart::printed:
        case FieldPart::numbers:
            return if_it(is_number_of(part, bare), bare);
        case FieldPart::range:
        case FieldPart::density:
            return if_it(is_number_or_range(bare), bare);
        case FieldPart::quantity:
            if (text.find_first_of("<>") != std::string::npos) return std::nullopt;
            return with_codes(bare, is_version_2);
        case FieldPart::count:
            return if_it(is_whole(text) && is_number_of(part, text), text);
        case FieldPart::per_cent:
            return fraction_of(bare);
        case FieldPart::date:
            return if_it(read_date(text).has_value(), normal_text(part, text));
        default:
            return text;
    }
}

std::string expected_of(const FieldPart& part) {
    switch (part.kind) {
        case FieldPart::text:
        case FieldPart::name:
        case FieldPart::plain:
            return "a text";
        case FieldPart::words:
            return "words, as a number is the text of Temperature (K)";
        case FieldPart::page:
            return "a page like 12 or m258";
        case FieldPart::formula:
            return "a formula like C12 H22 O11";
        case FieldPart::range:
        case FieldPart::density:
            return expected_number(part, "a number or a range of numbers");
        case FieldPart::quantity:
            return expected_number(part, "a text, or a number");
        case FieldPart::count:
            return expected_number(part, "a whole number");
        case FieldPart::per_cent:
            return "a number of per cent";
        case FieldPart::date:
            return "a date like 2004-07-09";
        default:
            return expected_number(part, "a number");
    }
}

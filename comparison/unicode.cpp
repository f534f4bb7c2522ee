#include "comparison/unicode.h"

#include <utf8proc.h>

#include <algorithm>

#include "markup/Utf8.h"

namespace {

const utf8proc_property_t& property_of(char32_t code) {
    return *utf8proc_get_property(static_cast<utf8proc_int32_t>(code));
}

}  // namespace

bool is_mark(char32_t code) {
    const auto category = property_of(code).category;
    return category >= UTF8PROC_CATEGORY_MN && category <= UTF8PROC_CATEGORY_ME;
}

bool is_letter(char32_t code) {
    const auto category = property_of(code).category;
    return category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO;
}

bool is_blank(char32_t code) {
    const auto category = property_of(code).category;
    constexpr char32_t next_line = 0x85;
    return is_ascii_blank(code) || code == next_line ||
           (category >= UTF8PROC_CATEGORY_ZS && category <= UTF8PROC_CATEGORY_ZP);
}

bool is_dash(char32_t code) {
    constexpr std::u32string_view others = U"−⁃˗➖";
    return property_of(code).category == UTF8PROC_CATEGORY_PD || others.find(code) != others.npos;
}

std::string_view apostrophes_of(char32_t code) {
    constexpr std::u32string_view single = U"'`´‘’‚‛′‵ʹʻʼʽˈ‹›", twice = U"\"“”„‟″‶ʺ«»〃";
    if (single.find(code) != single.npos) return "'";
    if (twice.find(code) != twice.npos) return "''";
    constexpr char32_t triple_prime = U'‴', triple_reversed = U'‷', quadruple_prime = U'⁗';
    if (code == triple_prime || code == triple_reversed) return "'''";
    return code == quadruple_prime ? "''''" : "";
}

char32_t usual_form(char32_t code) {
    constexpr std::u32string_view dots = U"•‧∙⋅";
    if (dots.find(code) != dots.npos) return U'·';
    return code == U'⁄' || code == U'∕' ? U'/' : code;
}

bool is_accent(char32_t mark) {
    return combines(mark) || (mark >= 0x1AB0 && mark <= 0x1AFF) ||
           (mark >= 0x1DC0 && mark <= 0x1DFF) || (mark >= 0xFE20 && mark <= 0xFE2F);
}

bool is_ignorable(char32_t code) { return property_of(code).ignorable; }

Decomposition::Decomposition(char32_t code, bool folds_case, bool compatible) {
    utf8proc_int32_t buffer[capacity];
    const int options = UTF8PROC_DECOMPOSE | (folds_case ? UTF8PROC_CASEFOLD : 0) |
                        (compatible ? UTF8PROC_COMPAT : 0);
    const auto written =
        utf8proc_decompose_char(static_cast<utf8proc_int32_t>(code), buffer, capacity,
                                static_cast<utf8proc_option_t>(options), nullptr);
    size_ = static_cast<std::size_t>(std::clamp<utf8proc_ssize_t>(written, 0, capacity));
    std::copy_n(buffer, size_, codes_);
    if (compatible && codes_[0] == ' ' && size_ > 1) *this = Decomposition(code, folds_case, false);
}

std::u32string in_canonical_order(std::string_view text) {
    std::u32string codes;
    while (!text.empty()) {
        const Utf8Character next = first_character(text);
        codes += Decomposition(next.code, false, false).codes();
        text.remove_prefix(next.size);
    }
    const auto class_of = [](char32_t code) { return property_of(code).combining_class; };
    const auto is_starter = [&](char32_t code) { return class_of(code) == 0; };
    for (auto from = codes.begin(); from != codes.end();) {
        from = std::find_if_not(from, codes.end(), is_starter);
        const auto to = std::find_if(from, codes.end(), is_starter);
        std::stable_sort(from, to,
                         [&](char32_t a, char32_t b) { return class_of(a) < class_of(b); });
        from = to;
    }
    return codes;
}

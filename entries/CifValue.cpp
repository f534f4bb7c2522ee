#include <algorithm>

#include "entries/CifDocument.h"
#include "entries/cif_text.h"
#include "entries/white_space.h"

namespace {

/// Whether a value has neither quotes nor blanks nor lines, as most have not.
bool is_word(std::string_view raw) {
    return !raw.empty() && std::string_view("'\";[{").find(raw.front()) == std::string_view::npos;
}

/// What stands between the quotes.
std::string_view without_quotes(const CifValue& value) {
    const std::string_view raw = value.raw;
    switch (value.quoting()) {
        case CifQuoting::single_quotes:
        case CifQuoting::double_quotes:
            return raw.substr(1, raw.size() - 2);
        case CifQuoting::triple_quotes:
            return raw.substr(3, raw.size() - 6);
        case CifQuoting::text_field: {
            const bool two_characters = raw.ends_with("\r\n;");
            return raw.substr(1, raw.size() - (two_characters ? 4 : 3));
        }
        default:
            return raw;
    }
}

/// What CifValue::text() is before its line ends are plain.
std::string_view bare_text(const CifValue& value) {
    const std::string_view text = without_quotes(value);
    const auto* const first = std::find_if_not(text.begin(), text.end(), is_white_space);
    if (first == text.end()) return {};
    const bool may_be_none = *first == '?' || *first == '.' || value.raw == ";";
    const bool is_none = may_be_none && std::all_of(first + 1, text.end(), is_white_space);
    return is_none ? std::string_view() : text;
}

/// Where the line that ends at `end` ends with a backslash, and perhaps blanks: the place of that
/// backslash, else npos.
std::size_t fold_of_line(std::string_view text, std::size_t begin, std::size_t end) {
    const std::size_t last = text.substr(0, end).find_last_not_of(" \t");
    const bool is_fold = last != std::string_view::npos && last >= begin && text[last] == '\\';
    return is_fold ? last : std::string_view::npos;
}

/// Whether the lines of a text field are folded: the first is a lone backslash.
bool begins_folded(std::string_view text) {
    const std::size_t end = text.find('\n');
    return end != std::string_view::npos && fold_of_line(text, 0, end) == 0;
}

/// Joins each line that ends with a backslash with the next.
std::string unfolded(std::string_view text) {
    std::string joined;
    joined.reserve(text.size());
    for (std::size_t begin = 0;;) {
        const std::size_t end = text.find('\n', begin);
        if (end == std::string_view::npos) return joined.append(text.substr(begin));
        const std::size_t fold = fold_of_line(text, begin, end);
        const bool goes_on = fold != std::string_view::npos;
        joined.append(text.substr(begin, goes_on ? fold - begin : end + 1 - begin));
        begin = end + 1;
    }
}

}  // namespace

CifQuoting CifValue::quoting() const {
    const char first = raw.empty() ? ' ' : raw.front();
    if (first == '\'' || first == '"') {
        const char triple[] = {first, first, first, 0};
        const bool is_triple = raw.size() >= 6 && raw.starts_with(triple) && raw.ends_with(triple);
        if (is_triple) return CifQuoting::triple_quotes;
        return first == '"' ? CifQuoting::double_quotes : CifQuoting::single_quotes;
    }
    const bool is_field = first == ';' && raw.find_first_of("\r\n") != std::string_view::npos;
    return is_field ? CifQuoting::text_field : CifQuoting::bare;
}

std::string CifValue::text() const {
    if (is_word(raw)) return std::string(is_none() ? std::string_view() : raw);
    return with_plain_line_ends(bare_text(*this));
}

bool CifValue::has_text() const { return is_word(raw) ? !is_none() : !bare_text(*this).empty(); }

bool CifValue::is_none() const { return raw.empty() || raw == "?" || raw == "."; }

std::string CifValue::content() const {
    if (is_none()) return "";
    std::string text = with_plain_line_ends(without_quotes(*this));
    if (quoting() != CifQuoting::text_field || !begins_folded(text)) return text;
    return unfolded(text);
}

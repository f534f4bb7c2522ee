#include <algorithm>

#include "entries/CifDocument.h"

namespace {

constexpr char white_space[] = " \t\r\n";

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

/// Lines end with "\n", whatever ends those of the file.
std::string with_plain_line_ends(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            plain += text[i];
        } else if (text.substr(i + 1, 1) != "\n") {
            plain += '\n';
        }
    }
    return plain;
}

}  // namespace

CifQuoting CifValue::quoting() const {
    const char first = raw.empty() ? ' ' : raw.front();
    if (first == '\'' || first == '"') {
        const std::string triple(3, first);
        const bool is_triple =
            raw.size() >= 2 * triple.size() && raw.starts_with(triple) && raw.ends_with(triple);
        if (is_triple) return CifQuoting::triple_quotes;
        return first == '"' ? CifQuoting::double_quotes : CifQuoting::single_quotes;
    }
    const bool has_lines = raw.find_first_of("\r\n") != std::string_view::npos;
    return first == ';' && has_lines ? CifQuoting::text_field : CifQuoting::bare;
}

std::string CifValue::text() const {
    const std::string_view text = without_quotes(*this);
    const std::size_t first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos) return "";
    const bool single = text.find_first_not_of(white_space, first + 1) == std::string_view::npos;
    const bool is_none = single && (text[first] == '?' || text[first] == '.' || raw == ";");
    return is_none ? "" : with_plain_line_ends(text);
}

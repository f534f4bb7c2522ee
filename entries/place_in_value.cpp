#include "entries/place_in_value.h"

#include <algorithm>

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::size_t quotes_of(CifQuoting quoting) {
    if (quoting == CifQuoting::bare) return 0;
    return quoting == CifQuoting::triple_quotes ? 3 : 1;
}

/// Whether nothing but blanks is left of the line behind `at`.
bool ends_line(std::string_view text, std::size_t at) {
    const std::size_t next = text.find_first_not_of(" \t", at + 1);
    return next == std::string_view::npos || text[next] == '\n' || text[next] == '\r';
}

}  // namespace

const char* place_in_value(const CifValue& value, std::string_view before) {
    std::string_view text = value.raw;
    const CifQuoting quoting = value.quoting();
    text.remove_prefix(quotes_of(quoting));
    const bool folded =
        quoting == CifQuoting::text_field && text.substr(0, 1) == "\\" && ends_line(text, 0);
    // Blanks and the signs of folds are all that one line has otherwise.
    auto left = before.size() -
                static_cast<std::size_t>(std::count_if(before.begin(), before.end(), is_blank));
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        const bool is_fold = folded && text[at] == '\\' && ends_line(text, at);
        if (is_blank(text[at]) || is_fold) continue;
        if (left == 0) break;
        --left;
    }
    return text.data() + at;
}

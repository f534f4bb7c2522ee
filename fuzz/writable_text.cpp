#include "fuzz/writable_text.h"

#include <algorithm>
#include <string_view>

#include "markup/Utf8.h"

namespace {

bool has_long_line(const std::string& text) {
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        if (end - from > longest_cif_line / 2) return true;
        from = end + 1;
    }
    return false;
}

/// Whether quotes of three, with nothing else, can hold a text.
bool fits_triple_quotes(const std::string& text) {
    if (has_long_line(text)) return false;
    const auto fits = [&](const char* quotes) {
        return text.find(quotes) == text.npos && (text.empty() || text.back() != quotes[0]);
    };
    return fits("'''") || fits("\"\"\"");
}

}  // namespace

std::string with_line_feeds(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
        lines += text[i] == '\r' ? '\n' : text[i];
    }
    return lines;
}

Writable writable(const std::string& text, bool is_version_2) {
    bool is_doubtful = false;
    for (std::string_view rest = text; !rest.empty();) {
        const Utf8Character c = first_character(rest);
        const bool is_blank = c.code == '\t' || c.code == '\n' || c.code == '\r';
        if (!c.valid || (c.code < 0x20 && !is_blank) || c.code == 0x7F) return Writable::no;
        is_doubtful = is_doubtful || (c.code >= 0x80 && c.code < 0xA0) || c.code == 0xFEFF ||
                      (c.code & 0xFFFE) == 0xFFFE || (c.code >= 0xFDD0 && c.code < 0xFDF0);
        rest.remove_prefix(c.size);
    }
    const std::string lines = with_line_feeds(text);
    if (lines.rfind(';', 0) == 0 && has_long_line(lines)) is_doubtful = true;
    if (lines.find("\n;") != lines.npos && !(is_version_2 && fits_triple_quotes(lines))) {
        is_doubtful = true;
    }
    if (lines.find(std::string(longest_cif_line / 2, ';')) != lines.npos) is_doubtful = true;
    return is_doubtful ? Writable::perhaps : Writable::yes;
}

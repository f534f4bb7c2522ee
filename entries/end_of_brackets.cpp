#include "entries/end_of_brackets.h"

#include <string>

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool is_one_of(std::string_view characters, char c) { return characters.find(c) != npos; }

/// One past the end of a quoted string or text field that may begin at `at`; `at` where none does.
std::size_t end_of_string(std::string_view text, std::size_t at) {
    const char before = text[at - 1];  // a bracket has opened
    std::string close;
    if (text[at] == ';' && is_one_of("\n\r", before)) {
        close = {before, ';'};
    } else if (is_one_of("'\"", text[at]) && is_one_of(" \t\r\n[]{}:", before)) {
        const std::string triple(3, text[at]);
        close = text.substr(at, 3) == triple ? triple : triple.substr(0, 1);
    } else if (text[at] == '#' && is_one_of(" \t\r\n", before)) {
        const std::size_t line_end = text.find_first_of("\r\n", at);
        return line_end;
    } else {
        return at;
    }
    const std::size_t end = text.find(close, at + (close.size() == 3 ? 3 : 1));
    return end == npos ? npos : end + close.size();
}

}  // namespace

std::size_t end_of_brackets(std::string_view text) {
    std::string wanted;  // the brackets that close those open
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '[' || c == '{') {
            wanted += c == '[' ? ']' : '}';
        } else if (c == ']' || c == '}') {
            if (wanted.back() != c) return npos;
            wanted.pop_back();
            if (wanted.empty()) return at + 1;
        } else {
            const std::size_t end = end_of_string(text, at);
            if (end == npos) return npos;
            if (end > at) at = end - 1;
        }
    }
    return npos;
}

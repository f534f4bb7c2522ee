#include "entries/kept_lines.h"

#include <algorithm>
#include <vector>

#include "entries/cif_text.h"
#include "entries/white_space.h"
#include "markup/Utf8.h"

namespace {

/// Where the characters of a text on one line stand in the text with its lines: begins, and the
/// end of the last. Between them lie line ends, the blanks around these and signs of folding.
std::vector<std::size_t> places_of(std::string_view line, std::string_view lines) {
    std::vector<std::size_t> places;
    places.reserve(line.size() + 1);
    std::size_t at = 0;
    for (const char c : line) {
        const bool is_blank = c == ' ';
        while (!is_blank && at < lines.size() && lines[at] != c) ++at;
        places.push_back(std::min(at, lines.size()));
        if (!is_blank) ++at;
        while (is_blank && at < lines.size() && is_white_space(lines[at])) ++at;
    }
    at = std::min(at, lines.size());
    places.push_back(at);
    return places;
}

}  // namespace

std::string in_kept_lines(std::string_view old, const std::string& text) {
    if (old.find('\n') == std::string_view::npos || text.empty()) return text;
    const std::string line = one_line(old);
    const std::size_t shorter = std::min(line.size(), text.size());
    std::size_t same = 0;
    while (same < shorter && line[same] == text[same]) ++same;
    while (same > 0 && same < text.size() && is_continuation_byte(text[same])) --same;
    std::size_t same_behind = 0;
    while (same_behind < shorter - same &&
           line[line.size() - same_behind - 1] == text[text.size() - same_behind - 1]) {
        ++same_behind;
    }
    while (same_behind > 0 && is_continuation_byte(text[text.size() - same_behind])) --same_behind;
    const std::vector<std::size_t> places = places_of(line, old);
    std::string result(old.substr(0, places[same]));
    result.append(text, same, text.size() - same_behind - same);
    const std::string_view rest = old.substr(places[line.size() - same_behind]);
    const bool is_of_text = same_behind > 0 || rest.find('\n') != std::string_view::npos;
    if (is_of_text) result += rest;  // and not a blank behind what is no more
    const bool is_read_so = one_line(result) == text && one_line(result, true) == text;
    return is_read_so ? result : text;
}

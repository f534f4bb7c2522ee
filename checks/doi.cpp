#include "checks/doi.h"

#include <algorithm>

#include "text/internal/ascii.h"

namespace {

bool is_printing(char c) { return c > ' ' && c < '\x7f'; }

/// Whether it is that and no more.
bool is_doi(std::string_view text) {
    constexpr std::string_view directory = "10.";
    constexpr std::size_t fewest_digits = 4, most_digits = 9;
    if (!text.starts_with(directory)) return false;
    std::size_t end = directory.size();
    while (end < text.size() && is_ascii_digit(text[end])) ++end;
    const std::size_t digits = end - directory.size();
    if (digits < fewest_digits || digits > most_digits) return false;
    while (end < text.size() && (is_ascii_digit(text[end]) || text[end] == '.')) ++end;
    if (end + 1 >= text.size() || text[end] != '/') return false;
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(end), text.end(), is_printing);
}

/// Without what people write before a DOI.
std::string_view without_address(std::string_view text) {
    constexpr std::string_view before[] = {"https:", "http:", "//", "dx.doi.org", "doi.org", "www.",
                                           "doi:",   "doi",   "/",  "\xC2\xA0",   " ",       ":"};
    const auto begins_with = [&text](std::string_view part) {
        const auto is_same = [](char a, char b) {
            return a == b || (is_ascii_letter(a) && (a | 0x20) == b);
        };
        return text.size() >= part.size() &&
               std::equal(part.begin(), part.end(), text.begin(),
                          [&](char b, char a) { return is_same(a, b); });
    };
    while (true) {
        const auto* const found = std::find_if(std::begin(before), std::end(before), begins_with);
        if (found == std::end(before)) return text;
        text.remove_prefix(found->size());
    }
}

}  // namespace

DoiReading read_doi(std::string_view text) {
    constexpr std::string_view behind = " .,;";
    if (is_doi(text) && behind.find(text.back()) == std::string_view::npos) {
        return {DoiReading::right};
    }
    std::string_view rest = without_address(text);
    const std::size_t end = rest.find_last_not_of(behind);
    rest = rest.substr(0, end == std::string_view::npos ? 0 : end + 1);
    // A line may have been broken at the stroke; other blanks may end the DOI.
    std::string doi(rest.substr(0, rest.find('/')));
    const std::size_t stroke = doi.size();
    while (!doi.empty() && doi.back() == ' ') doi.pop_back();
    if (stroke < rest.size()) {
        std::string_view suffix = rest.substr(stroke + 1);
        suffix.remove_prefix(std::min(suffix.find_first_not_of(' '), suffix.size()));
        doi.append("/").append(suffix);
    }
    if (!is_doi(doi)) return {DoiReading::none};
    return {DoiReading::decorated, doi};
}

#include "checks/pages.h"

#include <cstdint>
#include <optional>

#include "entries/read_whole.h"
#include "text/internal/ascii.h"

namespace {

/// A page number and the letters around it.
struct Page {
    std::string_view before, digits, behind;
    std::uint64_t number;
};

std::optional<Page> read_page(std::string_view text) {
    constexpr std::size_t most_letters = 2, most_digits = 9;
    std::size_t from = 0;
    while (from < text.size() && is_ascii_letter(text[from])) ++from;
    std::size_t to = from;
    while (to < text.size() && is_ascii_digit(text[to])) ++to;
    const std::size_t letters_behind = text.size() - to;
    if (from > most_letters || letters_behind > 1 || to - from > most_digits) return std::nullopt;
    if (letters_behind > 0 && !is_ascii_letter(text[to])) return std::nullopt;
    const auto number = read_whole<std::uint64_t>(text.substr(from, to - from));
    if (!number) return std::nullopt;
    return Page{text.substr(0, from), text.substr(from, to - from), text.substr(to), *number};
}

/// The number that the last digits stand for behind those of the first page.
std::uint64_t completed(const Page& last, const Page& first) {
    std::uint64_t unit = 1;
    for (std::size_t i = 0; i < last.digits.size(); ++i) unit *= 10;
    return first.number / unit * unit + last.number;
}

bool are_equal(std::string_view a, std::string_view b) {
    const auto in_lower_case = [](char c) { return static_cast<char>(c | 0x20); };
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (in_lower_case(a[i]) != in_lower_case(b[i])) return false;
    }
    return true;
}

}  // namespace

PageOrder page_order(std::string_view first_text, std::string_view last_text) {
    const std::optional<Page> first = read_page(first_text), last = read_page(last_text);
    if (!first || !last) return PageOrder::unknown;
    // "m123" to "5" is of one kind.
    const bool is_of_kind = last->before.empty() || are_equal(first->before, last->before);
    if (!is_of_kind) return PageOrder::unlike;
    if (last->number >= first->number) {
        const bool is_right = last->number > first->number || last->behind >= first->behind;
        return is_right ? PageOrder::right : PageOrder::reversed;
    }
    const bool is_abbreviated = last->digits.size() < first->digits.size();
    const bool is_behind = is_abbreviated && completed(*last, *first) >= first->number;
    return is_behind ? PageOrder::right : PageOrder::reversed;
}

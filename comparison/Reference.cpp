#include "comparison/Reference.h"

#include <algorithm>
#include <vector>

#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

using Reason = Finding::Reason;

/// The range without blanks and commas around it.
StringSlice trimmed(std::string_view text, std::size_t from, std::size_t to) {
    constexpr std::string_view left_out = " ,\t\r\n";
    while (from < to && left_out.find(text[from]) != std::string_view::npos) ++from;
    while (from < to && left_out.find(text[to - 1]) != std::string_view::npos) --to;
    return {to_position(from), to_position(to)};
}

/// Where the parentheses begin that end there, or npos.
std::size_t begin_of_parentheses(std::string_view text, std::size_t end) {
    std::size_t open = 0;
    for (std::size_t pos = end; pos-- > 0;) {
        if (text[pos] == ')') ++open;
        if (text[pos] == '(' && --open == 0) return pos;
    }
    return std::string_view::npos;
}

bool is_year(std::string_view text) {
    return text.size() == 4 && std::all_of(text.begin(), text.end(), is_ascii_digit) &&
           (text[0] == '1' || text[0] == '2');
}

/// "12", "i136", "S12": a digit with up to as many letters in front.
bool begins_page(std::string_view text) {
    constexpr std::size_t most_letters = 3;
    std::size_t pos = 0;
    while (pos < std::min(text.size(), most_letters) && is_ascii_letter(text[pos])) ++pos;
    return pos < text.size() && is_ascii_digit(text[pos]);
}

/// The dash between two pages, which may have dashes themselves.
StringSlice dash_of(std::string_view text, const StringSlice& pages) {
    std::vector<StringSlice> dashes;
    for (unsigned int pos = pages.from() + 1; pos < pages.to(); ++pos) {
        for (const std::string_view dash :
             {"-", "\u2010", "\u2011", "\u2012", "\u2013", "\u2014", "\u2212"}) {
            if (text.substr(pos, pages.to() - pos).starts_with(dash)) {
                dashes.emplace_back(pos, pos + length_of(dash));
            }
        }
    }
    const bool is_even = dashes.size() % 2 == 0;
    return is_even ? StringSlice(pages.to(), pages.to()) : dashes[dashes.size() / 2];
}

/// The parentheses with year or volume: the last ones, behind which is nothing, a comma or a page.
std::optional<StringSlice> find_issue(std::string_view text) {
    const std::size_t close = text.rfind(')');
    if (close == std::string_view::npos) return std::nullopt;
    const std::size_t open = begin_of_parentheses(text, close + 1);
    const std::string_view behind = text.substr(close + 1);
    const bool is_last =
        behind.empty() || behind[0] == ',' || (behind[0] == ' ' && begins_page(behind.substr(1)));
    if (!is_last || open == std::string_view::npos) return std::nullopt;
    return StringSlice(to_position(open), to_position(close + 1));
}

}  // namespace

std::optional<Reference> read_reference(std::string_view text) {
    const std::size_t end = text.size();
    std::size_t end_of_journal = end, begin_of_pages = end;
    StringSlice volume{0, 0}, year{0, 0};
    if (const std::optional<StringSlice> issue = find_issue(text)) {
        end_of_journal = issue->from();
        begin_of_pages = issue->to();
        const std::size_t inside = issue->from() + 1, close = issue->to() - 1;
        const std::size_t comma = text.substr(0, close).rfind(',');
        const bool has_both = comma != std::string_view::npos && comma > issue->from();
        const StringSlice last = trimmed(text, has_both ? comma : inside, close);
        const StringSlice place(last.from(), last.from());
        const bool last_is_year = has_both || is_year(text.substr(last.from(), last.length()));
        volume = has_both ? trimmed(text, inside, comma) : last_is_year ? place : last;
        year = last_is_year ? last : StringSlice(last.to(), last.to());
    } else {
        const std::size_t comma = text.rfind(", ");
        if (comma == std::string_view::npos) return std::nullopt;
        const std::string_view pages = text.substr(comma + 2);
        if (!begins_page(pages) || pages.find(')') != pages.npos) return std::nullopt;
        end_of_journal = begin_of_pages = comma;
        volume = year = {to_position(comma), to_position(comma)};
    }
    const StringSlice pages = trimmed(text, begin_of_pages, end);
    const StringSlice dash = dash_of(text, pages);
    return Reference{{{{Reason::journal, trimmed(text, 0, end_of_journal)},
                       {Reason::volume, volume},
                       {Reason::year, year},
                       {Reason::first_page, {pages.from(), dash.from()}},
                       {Reason::last_page, {dash.to(), pages.to()}}}}};
}

#include "checks/misspelt_tag.h"

#include <algorithm>

#include "checks/known_tags.h"
#include "entries/cif_text.h"
#include "text/internal/ascii.h"

namespace {

constexpr std::size_t shortest_word = 4;

/// Where two words differ: between a front and an end that they have in common.
struct Difference {
    std::size_t front, end;  ///< The lengths of these.
};

Difference difference(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t front = 0;
    while (front < shorter && a[front] == b[front]) ++front;
    std::size_t end = 0;
    while (end < shorter - front && a[a.size() - 1 - end] == b[b.size() - 1 - end]) ++end;
    return {front, end};
}

/// What stands between front and end.
std::string_view middle(std::string_view word, const Difference& difference) {
    return word.substr(difference.front, word.size() - difference.front - difference.end);
}

/// Whether one letter makes the one of the other.
bool is_slip(std::string_view written, std::string_view known) {
    if (written.size() == 2 && known.size() == 2) {
        return written[0] == known[1] && written[1] == known[0];
    }
    return written.size() <= 1 && known.size() <= 1;
}

bool are_letters(std::string_view text) {
    return std::all_of(text.begin(), text.end(), is_ascii_letter);
}

/// The length of the word between lines and the like around a place.
std::size_t length_of_word(std::string_view tag, std::size_t place) {
    std::size_t from = place, to = place;
    while (from > 0 && is_ascii_letter(tag[from - 1])) --from;
    while (to < tag.size() && is_ascii_letter(tag[to])) ++to;
    return to - from;
}

/// Whether "s" at the end of a word is all.
bool is_plural(std::string_view longer, std::string_view letters, std::size_t place) {
    const bool ends_word = place + 1 == longer.size() || !is_ascii_letter(longer[place + 1]);
    return letters == "s" && ends_word;
}

bool is_meant(std::string_view written, std::string_view known) {
    const std::size_t longer = std::max(written.size(), known.size());
    if (longer - std::min(written.size(), known.size()) > 1) return false;
    const Difference where = difference(written, known);
    const std::string_view own = middle(written, where), other = middle(known, where);
    if (!is_slip(own, other) || !are_letters(own) || !are_letters(other)) return false;
    if (own.empty() && is_plural(known, other, where.front)) return false;
    if (other.empty() && is_plural(written, own, where.front)) return false;
    return length_of_word(written, where.front) >= shortest_word &&
           length_of_word(known, where.front) >= shortest_word;
}

}  // namespace

std::optional<std::string> known_tag_for(std::string_view tag) {
    std::string plain = in_lower_case(tag);
    std::replace(plain.begin(), plain.end(), '.', '_');
    if (is_known_tag(plain)) return std::nullopt;
    for (const std::string_view known : known_tags()) {
        if (!is_meant(plain, known)) continue;
        const Difference where = difference(plain, known);
        std::string right(tag.substr(0, where.front));
        right += middle(known, where);
        right += tag.substr(tag.size() - where.end);
        return right;
    }
    return std::nullopt;
}

#include "entries/name_words.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "entries/cif_text.h"
#include "markup/Utf8.h"

namespace {

struct Particle {
    std::string_view word;
    bool may_be_capital;  // and still lead a surname: "Van" does, "Do" may be a given name
};

constexpr Particle particles[] = {
    {"af", false},  {"al", true},    {"av", false},   {"bin", false}, {"da", false},
    {"dal", true},  {"dalla", true}, {"das", false},  {"de", true},   {"degli", true},
    {"dei", true},  {"del", true},   {"della", true}, {"den", true},  {"der", true},
    {"di", true},   {"do", false},   {"dos", true},   {"du", true},   {"el", true},
    {"ibn", false}, {"la", true},    {"las", false},  {"le", true},   {"les", false},
    {"los", false}, {"mc", true},    {"st", true},    {"ten", false}, {"ter", true},
    {"ur", false},  {"van", true},   {"vom", true},   {"von", true},  {"zu", false},
    {"zum", false}, {"zur", false},
};

constexpr std::string_view words_of_no_person[] = {
    "and", "collaboration", "committee", "consortium", "department", "dr",   "et",        "group",
    "inc", "institute",     "ltd",       "of",         "prof",       "team", "university"};
constexpr std::size_t longest_word = 13;  // of these tables

struct Suffix {
    std::string_view written, text;
};

constexpr Suffix suffixes[] = {{"jr", "Jr"}, {"jnr", "Jr"},  {"sr", "Sr"},
                               {"ii", "II"}, {"iii", "III"}, {"iv", "IV"}};

}  // namespace

char32_t capital(char32_t letter) {
    const auto is_within = [letter](char32_t from, char32_t to) {
        return letter >= from && letter <= to;
    };
    if (is_within('a', 'z')) return letter - 0x20;
    if (letter == 0x131) return 'I';  // the dotless i
    if (letter == 0xFF) return 0x178;
    if (letter == 0x3C2) return 0x3A3;  // the sigma of word ends
    const bool has_none = letter == 0xDF || letter == 0xF7 || letter == 0x138 || letter == 0x149;
    if (has_none) return letter;
    if (is_within(0xE0, 0xFE) || is_within(0x3B1, 0x3C9) || is_within(0x430, 0x44F)) {
        return letter - 0x20;
    }
    if (is_within(0x450, 0x45F)) return letter - 0x50;
    // Pairs of a capital and its letter: here the capital is odd, elsewhere it is even.
    const bool has_odd_capital = is_within(0x139, 0x148) || is_within(0x179, 0x17E);
    if (!has_odd_capital && !is_within(0x100, 0x177) && !is_within(0x1E00, 0x1EFF)) return letter;
    return (letter % 2 == 0) == has_odd_capital ? letter - 1 : letter;
}

bool is_small(std::string_view word) {
    if (word.empty()) return false;
    const char32_t first = first_character(word).code;
    return capital(first) != first;
}

bool is_in_capitals(std::string_view word) {
    std::size_t letters = 0;
    for (; !word.empty(); ++letters) {
        if (is_small(word)) return false;
        word.remove_prefix(end_of_character(word));
    }
    return letters > 1;
}

std::size_t characters_of(std::string_view word) {
    std::size_t characters = 0;
    for (; !word.empty(); ++characters) word.remove_prefix(end_of_character(word));
    return characters;
}

std::optional<std::string_view> name_suffix(std::string_view word) {
    if (word.size() > longest_word) return std::nullopt;
    const std::string lower = in_lower_case(word);
    for (const Suffix& row : suffixes) {
        if (lower == row.written) return row.text;
    }
    return std::nullopt;
}

bool is_particle(std::string_view word) {
    if (word.size() > longest_word) return false;
    const std::string lower = in_lower_case(word);
    return std::any_of(std::begin(particles), std::end(particles), [&](const Particle& row) {
        return row.word == lower && (row.may_be_capital || word == lower);
    });
}

bool is_of_no_person(std::string_view word) {
    if (word.size() > longest_word) return false;
    return std::find(std::begin(words_of_no_person), std::end(words_of_no_person),
                     in_lower_case(word)) != std::end(words_of_no_person);
}

bool stands_for_name(std::string_view word, bool has_dot) {
    constexpr std::size_t longest_abbreviation = 3;  // in letters: "Chr."
    while (!word.empty()) {
        const std::size_t end = std::min(word.find('-'), word.size());
        const std::string_view part = word.substr(0, end);
        const std::size_t letters = characters_of(part);
        const bool lacks_vowel = part.find_first_of("aeiouyAEIOUY") == std::string_view::npos;
        // Without a vowel two letters are no name, but for one that is frequent.
        const bool is_cluster = letters == 2 && letters == part.size() && lacks_vowel &&
                                !is_in_capitals(part) && part != "Ng";
        const bool is_abbreviation =
            has_dot && (letters == 2 || (letters == longest_abbreviation && lacks_vowel));
        if (letters > 1 && !is_cluster && !is_abbreviation) return false;
        word.remove_prefix(std::min(end + 1, word.size()));
    }
    return true;
}

#include "entries/PersonName.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "entries/name_pieces.h"
#include "entries/name_words.h"
#include "markup/Utf8.h"

namespace {

/// What a name is made of; the texts refer to what was read.
struct Parts {
    NamePieces given;
    std::string_view particles, surname, suffix;
};

bool is_initial(const NamePiece& piece) { return stands_for_name(piece.text, piece.has_dot); }
/// A particle that cannot be anything else.
bool is_small_particle(const NamePiece& piece) {
    return is_small(piece.text) && is_particle(piece.text);
}

/// Takes the suffix off that is the last of the pieces.
std::string_view take_suffix(NamePieces& pieces) {
    const auto found = pieces.size() > 1 ? name_suffix(pieces.back().text) : std::nullopt;
    if (found) pieces.pop_back();
    return found.value_or("");
}

/// Takes the particles behind the given names off: those of "Dreele, R B von".
std::string_view take_particles(NamePieces& given) {
    std::size_t end = given.size();
    while (end > 1 && is_small_particle(given[end - 1])) --end;
    const std::string_view particles = text_of(given, end, given.size());
    given.erase(given.begin() + static_cast<std::ptrdiff_t>(end), given.end());
    return particles;
}

/// The pieces [from, to).
NamePieces some_of(const NamePieces& pieces, std::size_t from, std::size_t to) {
    const auto begin = pieces.begin();
    return {begin + static_cast<std::ptrdiff_t>(from), begin + static_cast<std::ptrdiff_t>(to)};
}

/// "Smith A B" or "Della Giusta A".
std::optional<Parts> surname_first(const NamePieces& pieces) {
    std::size_t first_initial = 1;
    while (!is_initial(pieces[first_initial])) ++first_initial;
    Parts parts;
    parts.given = some_of(pieces, first_initial, pieces.size());
    parts.particles = take_particles(parts.given);
    parts.surname = text_of(pieces, 0, first_initial);
    for (std::size_t i = 0; i + 1 < first_initial; ++i) {
        if (!is_particle(pieces[i].text)) return std::nullopt;  // or it is a given name
    }
    return parts;
}

/// Whether it is a word with a small letter in front that leads no surname.
bool is_odd(const NamePiece& piece) {
    const bool is_elided = piece.text.size() > 2 && piece.text.find('\'', 1) == 1;  // "d'Amour"
    return is_small(piece.text) && !is_initial(piece) && !is_particle(piece.text) && !is_elided;
}

/// Where the surname begins in "Ludwig van Beethoven", which is of two pieces at least.
std::size_t begin_of_surname(const NamePieces& pieces) {
    for (std::size_t i = 1; i + 1 < pieces.size(); ++i) {
        const std::string_view word = pieces[i].text;
        if (is_particle(word)) return i;
        const bool joins_surnames = word == "y" || word == "e" || word == "i";
        if (joins_surnames && i > 1 && !pieces[i].has_dot && !is_initial(pieces[i - 1])) {
            return i - 1;
        }
    }
    return pieces.size() - 1;
}

/// "Anne B. Smith", or one that begins with its surname in capitals.
std::optional<Parts> given_names_first(const NamePieces& pieces) {
    constexpr std::size_t longest_initials = 3;  // in letters, where dots are missing: "XLM"
    if (std::any_of(pieces.begin(), pieces.end(), is_odd)) return std::nullopt;
    const NamePiece& first = pieces.front();
    const NamePiece& last = pieces.back();
    const bool begins_in_capitals = is_in_capitals(first.text) && !first.has_dot;
    if (pieces.size() == 2 && begins_in_capitals != is_in_capitals(last.text)) {
        const NamePiece& capitals = begins_in_capitals ? first : last;
        if (characters_of(capitals.text) <= longest_initials) return std::nullopt;
        if (begins_in_capitals) return Parts{{last}, "", first.text, ""};
    }
    // "Smith D Yu" may have two initials or a surname behind one.
    const bool may_be_initial = last.text == "Yu" || last.text == "Ya";
    const NamePiece& before = pieces[pieces.size() - 2];
    if (may_be_initial && is_initial(before) && !before.has_dot) return std::nullopt;
    const std::size_t surname = begin_of_surname(pieces);
    return Parts{some_of(pieces, 0, surname), "", text_of(pieces, surname, pieces.size()), ""};
}

/// A name without a comma.
std::optional<Parts> parts_of(std::string_view name) {
    NamePieces pieces = split_name(name);
    const std::string_view suffix = take_suffix(pieces);
    std::size_t first_word = 0;
    while (first_word < pieces.size() && is_initial(pieces[first_word])) ++first_word;
    if (first_word == pieces.size()) return std::nullopt;
    std::size_t last = pieces.size() - 1;
    while (last > first_word && is_small_particle(pieces[last])) --last;
    const bool ends_with_initial = is_initial(pieces[last]);
    std::optional<Parts> parts;
    if (pieces.size() == 1) {
        parts = Parts{{}, "", pieces[0].text, ""};
    } else if (first_word == 0 && ends_with_initial) {
        parts = surname_first(pieces);
    } else if (first_word > 0 && pieces[first_word].is_glued && !ends_with_initial) {
        // The database's own form.
        parts = Parts{some_of(pieces, 0, first_word), "",
                      text_of(pieces, first_word, pieces.size()), ""};
    } else if (!ends_with_initial) {
        parts = given_names_first(pieces);
    }
    if (parts) parts->suffix = suffix;
    return parts;
}

/// A name whose surname stands before a comma.
std::optional<Parts> parts_of(std::string_view surname, std::string_view given_names) {
    NamePieces before = split_name(surname);
    Parts parts{split_name(given_names), "", "", take_suffix(before)};
    if (parts.suffix.empty()) parts.suffix = take_suffix(parts.given);
    parts.particles = take_particles(parts.given);
    if (before.empty() || parts.given.empty()) return std::nullopt;
    const auto is_lone_initial = [](const NamePiece& piece) {
        const bool may_be_word = !piece.has_dot && characters_of(piece.text) > 1;
        return is_initial(piece) && !may_be_word && piece.text != "St";
    };
    // Two names may be in the list, or a surname that has one letter.
    const bool has_initial = is_lone_initial(before.front()) || is_lone_initial(before.back());
    if (has_initial && (before.size() > 1 || is_initial(parts.given.front()))) return std::nullopt;
    parts.surname = text_of(before, 0, before.size());
    return parts;
}

/// A name with all its commas, between which a suffix may stand.
std::optional<Parts> parts_of_list(std::string_view name) {
    std::vector<std::string_view> texts;
    std::string_view suffix;
    while (!name.empty()) {
        const std::size_t end = std::min(name.find(','), name.size());
        const std::string_view text = name.substr(0, end);
        name.remove_prefix(std::min(end + 1, name.size()));
        const NamePieces pieces = split_name(text);
        const bool may_be_suffix = pieces.size() == 1 && !texts.empty();
        const auto found = may_be_suffix ? name_suffix(pieces[0].text) : std::nullopt;
        if (found && !suffix.empty()) return std::nullopt;
        if (found) suffix = *found;
        if (std::any_of(pieces.begin(), pieces.end(),
                        [](const NamePiece& piece) { return is_of_no_person(piece.text); })) {
            return std::nullopt;
        }
        if (!found && (!pieces.empty() || texts.empty())) texts.push_back(text);
    }
    std::optional<Parts> parts;
    if (texts.size() == 1) parts = parts_of(texts[0]);
    if (texts.size() == 2) parts = parts_of(texts[0], texts[1]);
    if (!parts || suffix.empty()) return parts;
    if (!parts->suffix.empty()) return std::nullopt;
    parts->suffix = suffix;
    return parts;
}

/// Appends the first letter of the name, raised, with its accents.
void append_initial(std::string_view name, std::string& result) {
    name.remove_prefix(std::min(name.find_first_not_of("'`"), name.size()));
    if (name.empty()) return;
    const Utf8Character first = first_character(name);
    append_utf8(result, capital(first.code));
    result += name.substr(first.size, end_of_character(name) - first.size);
    result += '.';
}

/// Appends "Y.-Z." for "Yi-Zhi".
void append_initials(std::string_view name, std::string& result) {
    while (!name.empty()) {
        const std::size_t end = std::min(name.find('-'), name.size());
        if (end > 0) append_initial(name.substr(0, end), result);
        name.remove_prefix(end);
        const bool goes_on = name.size() > 1 && name[1] != '-';
        if (goes_on && !result.empty()) result += '-';
        name.remove_prefix(std::min(name.size(), std::size_t{1}));
    }
}

/// Whether they are initials without dots: "JA".
bool are_initials(const NamePiece& given) {
    constexpr std::size_t most_initials = 3;
    return !given.has_dot && given.text.find('-') == std::string_view::npos &&
           is_in_capitals(given.text) && characters_of(given.text) <= most_initials;
}

std::string composed(const Parts& parts) {
    // Where all is in capitals, short names cannot be told from initials, and are more frequent.
    const bool all_capitals = is_in_capitals(parts.surname);
    std::string result;
    for (const NamePiece& piece : parts.given) {
        std::string_view name = piece.text;
        if (name == "St" && &piece != &parts.given.back()) {
            result += "St.";
        } else if (!all_capitals && are_initials(piece)) {
            for (; !name.empty(); name.remove_prefix(end_of_character(name))) {
                append_initial(name, result);
            }
        } else {
            append_initials(name, result);
        }
    }
    result += parts.particles;
    if (!parts.particles.empty()) result += ' ';
    result += parts.surname;
    if (!parts.suffix.empty()) result += ' ';
    result += parts.suffix;
    return result;
}

}  // namespace

PersonName read_person_name(std::string_view as_written) {
    const std::optional<std::string> name = plain_name(as_written);
    const std::optional<Parts> parts = name ? parts_of_list(*name) : std::nullopt;
    if (!parts) return {std::string(as_written), true};
    return {composed(*parts), false};
}

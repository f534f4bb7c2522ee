#include "comparison/Author.h"

#include <algorithm>

#include "comparison/folding.h"
#include "entries/PersonName.h"
#include "entries/name_pieces.h"
#include "entries/name_words.h"
#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

using Words = std::vector<std::string>;

/// Without blanks, dots, hyphens and the like.
std::string letters_of(std::string_view folded) {
    std::string letters;
    std::copy_if(folded.begin(), folded.end(), std::back_inserter(letters), [](char c) {
        return is_ascii_letter(c) || is_ascii_digit(c) || static_cast<unsigned char>(c) >= 0x80;
    });
    return letters;
}

/// The words of a folded text, parts of hyphened names each on its own.
Words words_of(std::string_view folded) {
    constexpr std::string_view ends = " .,-";
    Words words;
    while (!folded.empty()) {
        const std::size_t end = std::min(folded.find_first_of(ends), folded.size());
        const std::string word = letters_of(folded.substr(0, end));
        if (!word.empty()) words.push_back(word);
        folded.remove_prefix(std::min(end + 1, folded.size()));
    }
    return words;
}

std::string fold(std::string_view text) { return folded(text, Folding{}); }

std::string first_letter(std::string_view word) {
    std::size_t end = 1;
    while (end < word.size() && (static_cast<unsigned char>(word[end]) & 0xC0) == 0x80) ++end;
    return std::string(word.substr(0, end));
}

/// The words that are not of the surname, which stands last or first; none where it does not.
Words without(const Words& all, const Words& surname) {
    if (surname.size() > all.size()) return {};
    const auto size = static_cast<std::ptrdiff_t>(surname.size());
    if (std::equal(surname.begin(), surname.end(), all.end() - size)) {
        return {all.begin(), all.end() - size};
    }
    if (std::equal(surname.begin(), surname.end(), all.begin())) {
        return {all.begin() + size, all.end()};
    }
    return {};
}

/// Longer words by the alphabet, which are the same in any order of names, and then initials.
std::string in_alphabetical_order(const Words& words) {
    Words names;
    std::string initials;
    for (const std::string& word : words) {
        if (first_letter(word) == word) {
            initials += word;
        } else {
            names.push_back(word);
        }
    }
    if (names.size() < 2) return {};
    std::sort(names.begin(), names.end());
    std::string result;
    for (const std::string& name : names) result.append(name).append(" ");
    return result.append(initials);
}

/// Fills in what the database's form of the name says.
void read_parts(std::string_view name, Author& author) {
    NamePieces pieces = split_name(name);
    std::size_t begin = 0;
    Words initials;
    for (; begin + 1 < pieces.size() && pieces[begin].has_dot; ++begin) {
        for (std::string& word : words_of(fold(pieces[begin].text))) initials.push_back(word);
    }
    if (begin + 1 < pieces.size() && name_suffix(pieces.back().text)) {
        author.suffix = fold(pieces.back().text);
        pieces.pop_back();
    }
    std::size_t core = begin;
    while (core + 1 < pieces.size() && is_particle(pieces[core].text)) ++core;
    const std::string_view surname = text_of(pieces, begin, pieces.size());
    const std::string folded_surname = fold(surname);
    author.surname = letters_of(folded_surname);
    author.with_umlauts = letters_of(folded(surname, Folding{.umlauts = true}));
    author.core = letters_of(fold(text_of(pieces, core, pieces.size())));

    Words all = words_of(fold(author.text));
    if (!author.suffix.empty() && !all.empty() && name_suffix(all.back())) all.pop_back();
    const Words surname_words = words_of(folded_surname);
    author.given = without(all, surname_words);
    // "XLM" is of three names.
    if (author.given.size() != initials.size()) author.given = initials;
    author.all_words = in_alphabetical_order(all);
    if (surname_words.empty()) return;
    author.last_word = author.initials();
    for (std::size_t i = 0; i + 1 < surname_words.size(); ++i) {
        author.last_word += first_letter(surname_words[i]);
    }
    author.last_word.append("|").append(surname_words.back());
}

Author author_at(std::string_view text, const StringSlice& range) {
    Author author;
    author.range = range;
    author.text = text.substr(range.from(), range.length());
    const PersonName name = read_person_name(author.text);
    author.is_name = !name.doubtful;
    if (author.is_name) {
        read_parts(name.text, author);
    } else {
        const std::string folded_name = fold(author.text);
        author.surname = author.core = author.with_umlauts = letters_of(folded_name);
        author.all_words = in_alphabetical_order(words_of(folded_name));
    }
    return author;
}

bool is_initial(const NamePiece& piece) { return stands_for_name(piece.text, piece.has_dot); }

/// Whether it stands behind the comma of a surname: "A. B.", "Anne B" or "Jr".
bool continues_name(std::string_view name, std::string_view next) {
    const NamePieces pieces = split_name(next);
    if (pieces.empty()) return false;
    if (pieces.size() == 1 && name_suffix(pieces[0].text)) return true;
    const NamePieces before = split_name(name);
    return is_initial(pieces.back()) && std::none_of(before.begin(), before.end(), is_initial);
}

/// The range without blanks around it.
StringSlice trimmed(std::string_view text, std::size_t from, std::size_t to) {
    constexpr std::string_view blanks = " \t\r\n";
    while (from < to && blanks.find(text[from]) != std::string_view::npos) ++from;
    while (from < to && blanks.find(text[to - 1]) != std::string_view::npos) --to;
    return {to_position(from), to_position(to)};
}

/// The ranges between the separators that are not empty.
std::vector<StringSlice> split_list(std::string_view text) {
    constexpr std::string_view last = " and ";
    const char separator = text.find(';') == std::string_view::npos ? ',' : ';';
    std::vector<StringSlice> ranges;
    std::size_t from = 0;
    for (std::size_t pos = 0; pos <= text.size(); ++pos) {
        const bool is_last = text.substr(pos).starts_with(last);
        if (pos < text.size() && text[pos] != separator && !is_last) continue;
        const StringSlice range = trimmed(text, from, pos);
        if (!range.empty()) ranges.push_back(range);
        from = is_last ? pos + last.size() - 1 : pos + 1;
    }
    return ranges;
}

}  // namespace

std::string Author::initials(std::size_t most) const {
    std::string initials;
    for (std::size_t i = 0; i < std::min(most, given.size()); ++i) {
        initials += first_letter(given[i]);
    }
    return initials;
}

Author read_author(std::string_view name) { return author_at(name, {0, length_of(name)}); }

std::vector<Author> read_authors(std::string_view text) {
    const auto at = [text](const StringSlice& slice) {
        return text.substr(slice.from(), slice.length());
    };
    std::vector<StringSlice> ranges = split_list(text), names;
    // "Smith, Anne", rather than two of whom no more is known.
    if (ranges.size() == 2 && text[ranges[0].to()] == ',' &&
        split_name(at(ranges[0])).size() == 1) {
        ranges = {ranges[0].combine(ranges[1])};
    }
    for (const StringSlice& range : ranges) {
        if (!names.empty() && continues_name(at(names.back()), at(range))) {
            names.back() = names.back().combine(range);
        } else {
            names.push_back(range);
        }
    }
    std::vector<Author> authors;
    authors.reserve(names.size());
    for (const StringSlice& name : names) authors.push_back(author_at(text, name));
    return authors;
}

#include "comparison/journal_names.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "comparison/folding.h"
#include "text/internal/ascii.h"

namespace {

// What abbreviations leave out.
constexpr std::string_view small_words[] = {
    "and", "das", "de",  "dei", "del",  "della", "dem",  "den", "der", "des",
    "di",  "die", "du",  "et",  "foer", "for",   "fuer", "fur", "het", "in",
    "la",  "le",  "les", "of",  "og",   "on",    "the",  "und", "van", "voor"};
constexpr std::string_view section_words[] = {
    "abt", "abteilung", "part", "pt", "sec", "sect", "section", "ser", "serie", "series", "teil"};

// Abbreviations, and words that begin with them but have other ones.
constexpr struct {
    std::string_view abbreviation, other_word;
} other_words[] = {{"org", "organom"}, {"phys", "physiol"}};

struct Word {
    std::string_view text;
    std::string_view before;  ///< What stands between it and the last word.
    char behind;              ///< The character there.
    bool is_label = false;    ///< Of a section: "C", "A6", "2".
};
using Words = std::vector<Word>;

template <std::size_t size>
bool is_one_of(const std::string_view (&words)[size], std::string_view word) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool is_of_word(char c) {
    return is_ascii_letter(c) || is_ascii_digit(c) || static_cast<unsigned char>(c) >= 0x80;
}

/// All words but those in parentheses where there are only numbers: "(24,1968-38,1982)".
Words all_words(std::string_view name) {
    Words words;
    std::size_t words_before = 0;  // the last parenthesis
    bool has_letter = true;        // behind it
    std::size_t end = 0;           // of the last word
    for (std::size_t pos = 0; pos < name.size();) {
        const std::size_t from = pos;
        while (pos < name.size() && is_of_word(name[pos])) {
            has_letter |= !is_ascii_digit(name[pos++]);
        }
        if (pos > from) {
            words.push_back({name.substr(from, pos - from), name.substr(end, from - end),
                             pos < name.size() ? name[pos] : ' '});
            end = pos;
            continue;
        }
        if (name[pos] == '(') {
            words_before = words.size();
            has_letter = false;
        } else if (name[pos] == ')' && !has_letter) {
            words.resize(words_before);
        }
        ++pos;
    }
    return words;
}

/// Whether the word, which is not the first, is the letter or the number of a section.
bool is_label(const Words& words, std::size_t index) {
    const Word& word = words[index];
    if (std::any_of(word.text.begin(), word.text.end(), is_ascii_digit)) return true;
    if (word.text.size() != 1) return false;
    if (is_one_of(section_words, words[index - 1].text)) return true;
    const bool is_abbreviation = word.text == "j" || word.text == "z";  // "Eur J Inorg Chem"
    return !is_abbreviation && (word.behind != '.' || index + 1 == words.size());
}

/// Whether an abbreviation leaves it out: "the", the "d" of "d'Histoire", the "Section" of
/// "Section C" and the "A" of "Chemistry - A European Journal".
bool is_left_out(const Words& words, std::size_t index) {
    const Word& word = words[index];
    if (is_one_of(small_words, word.text)) return word.behind != '.';  // "Cryst. Growth Des."
    if (index + 1 == words.size()) return false;
    if (word.text == "l" || word.text == "d") return word.behind == '\'';
    if (is_one_of(section_words, word.text)) return is_label(words, index + 1);
    return index > 0 && word.text == "a" && word.behind == ' ' &&
           word.before.find('-') != word.before.npos;
}

/// The words that tell journals from each other.
Words words_of(std::string_view folded) {
    const Words all = all_words(folded);
    Words words;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (is_left_out(all, i)) continue;
        words.push_back(all[i]);
        words.back().is_label = i > 0 && is_label(all, i);
    }
    return words;
}

/// Whether the letters are of the word in their order: "natl" of "national", "jpn" of "japanese".
bool is_contraction(std::string_view letters, std::string_view word) {
    constexpr std::size_t fewest = 3;
    if (letters.size() < fewest || letters[0] != word[0]) return false;
    const auto vowels = std::count_if(letters.begin(), letters.end(), [](char c) {
        return std::string_view("aeiouy").find(c) != std::string_view::npos;
    });
    const bool begins_alike = letters.substr(0, fewest) == word.substr(0, fewest);  // "compd"
    if (vowels > 1) return false;
    if (vowels == 1 && letters.back() != word.back() && !begins_alike) return false;
    auto letter = letters.begin();
    for (const char c : word) {
        if (letter != letters.end() && *letter == c) ++letter;
    }
    return letter == letters.end();
}

bool abbreviates(const Word& shorter, const Word& longer) {
    constexpr std::size_t longest_without_dot = 6, fewest_left_out = 2;
    const std::size_t size = shorter.text.size();
    if (shorter.is_label || longer.is_label || size >= longer.text.size()) return false;
    const bool has_dot = shorter.behind == '.';
    const bool leaves_more = size + fewest_left_out <= longer.text.size();
    if (!has_dot && (!leaves_more || size > longest_without_dot)) return false;
    for (const auto& row : other_words) {
        if (shorter.text == row.abbreviation && longer.text.starts_with(row.other_word)) {
            return false;
        }
    }
    return longer.text.starts_with(shorter.text) ||
           (leaves_more && is_contraction(shorter.text, longer.text));
}

bool fits(const Word& left, const Word& right) {
    if (left.is_label != right.is_label) return false;
    return left.text == right.text || abbreviates(left, right) || abbreviates(right, left);
}

std::string joined(const Words& words) {
    std::string text;
    for (const Word& word : words) text += word.text;
    return text;
}

}  // namespace

bool may_be_one_journal(std::string_view left, std::string_view right) {
    const std::string texts[] = {folded(left, Folding{}), folded(right, Folding{})};
    const Words left_words = words_of(texts[0]), right_words = words_of(texts[1]);
    if (left_words.empty() || right_words.empty()) return texts[0] == texts[1];
    const auto end = std::mismatch(left_words.begin(), left_words.end(), right_words.begin(),
                                   right_words.end(), fits);
    const bool left_ends = end.first == left_words.end(),
               right_ends = end.second == right_words.end();
    if (left_ends && right_ends) return true;
    if (left_ends || right_ends) {
        if (end.first[-1].is_label) return true;
    }
    return joined(left_words) == joined(right_words);  // "CrystEngComm"
}

std::string journal_words(std::string_view name) {
    const std::string text = folded(name, Folding{});
    std::string result;
    for (const Word& word : words_of(text)) {
        if (!result.empty()) result += ' ';
        result += word.text;
    }
    return result;
}

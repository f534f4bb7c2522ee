#include "checks/Journal.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "comparison/journal_names.h"

namespace {

/// What a journal may be called.
struct Spelling {
    std::string words;  // folded
    const char* text;
    const Journal* journal;
};

/// All of them, in ascending order of their words.
const std::vector<Spelling>& spellings() {
    static const std::vector<Spelling> all = [] {
        std::vector<Spelling> result;
        result.reserve(2 * known_journals().size());
        for (const Journal& journal : known_journals()) {
            for (const char* const text : {journal.name, journal.abbreviation}) {
                if (*text) result.push_back({journal_words(text), text, &journal});
            }
        }
        std::sort(result.begin(), result.end(), [](const Spelling& a, const Spelling& b) {
            return std::pair(std::string_view(a.words), a.journal) <
                   std::pair(std::string_view(b.words), b.journal);
        });
        return result;
    }();
    return all;
}

/// Where the first difference of texts begins that differ by one letter, or two that changed
/// places.
std::optional<std::size_t> place_of_slip(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    if (std::max(a.size(), b.size()) > shorter + 1) return std::nullopt;
    std::size_t front = 0, back = 0;
    while (front < shorter && a[front] == b[front]) ++front;
    while (back < shorter - front && a[a.size() - 1 - back] == b[b.size() - 1 - back]) ++back;
    if (front + back >= std::max(a.size(), b.size()) - 1) return front;
    const bool are_swapped = a.size() == b.size() && front + back + 2 == a.size() &&
                             a[front] == b[front + 1] && a[front + 1] == b[front];
    return are_swapped ? std::optional(front) : std::nullopt;
}

/// The word of a text in which a place lies, or which it ends.
std::string_view word_at(std::string_view text, std::size_t place) {
    std::size_t from = place;
    while (from > 0 && text[from - 1] != ' ') --from;
    return text.substr(from, text.find(' ', from) - from);
}

bool is_word(std::string_view word) {
    return std::all_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

/// Whether the words differ by a letter in one word that is long enough to be told from others.
bool fill_in_slip(std::string_view words, const Spelling& spelling, JournalMatch& match) {
    constexpr std::size_t shortest_word = 5, shortest_name = 9;
    if (words.size() < shortest_name) return false;
    const auto place = place_of_slip(words, spelling.words);
    if (!place) return false;
    const std::string_view wrong = word_at(words, *place);
    const std::string_view right = word_at(spelling.words, *place);
    // Otherwise words were joined or cut.
    const bool is_in_word = words.size() - wrong.size() == spelling.words.size() - right.size();
    if (!is_in_word || !is_word(wrong) || !is_word(right)) return false;
    if (std::min(wrong.size(), right.size()) < shortest_word) return false;
    const bool is_cut = wrong.starts_with(right) || right.starts_with(wrong);
    if (is_cut && spelling.text == spelling.journal->abbreviation) return false;
    match = {spelling.journal, spelling.text, std::string(wrong), std::string(right)};
    return true;
}

}  // namespace

JournalMatch find_journal(std::string_view name) {
    const std::string words = journal_words(name);
    const std::vector<Spelling>& all = spellings();
    const auto same = std::lower_bound(
        all.begin(), all.end(), words,
        [](const Spelling& spelling, const std::string& text) { return spelling.words < text; });
    if (same != all.end() && same->words == words) return {same->journal, same->text};
    JournalMatch match;
    for (const Spelling& spelling : all) {
        const Journal* const before = match.journal;
        if (fill_in_slip(words, spelling, match) && before && before != match.journal) return {};
    }
    return match;
}

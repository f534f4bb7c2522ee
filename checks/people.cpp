#include "checks/people.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

#include "comparison/Author.h"

namespace {

enum class Likeness { none, alike, same };

using Key = std::pair<std::string, std::size_t>;  // and the place in the list

/// The surname such as it is with umlauts and without: "muller" of "Mueller".
std::string key_of(const Author& author) {
    std::string key;
    for (const char c : author.core) {
        const bool is_of_umlaut = c == 'e' && !key.empty() &&
                                  std::string_view("aou").find(key.back()) != std::string::npos;
        if (!is_of_umlaut) key += c;
    }
    return key;
}

/// Whether one stands for the other: "a" for "anne".
bool fits(const std::string& a, const std::string& b) {
    return a.starts_with(b) || b.starts_with(a);
}

Likeness likeness_of_given_names(const Author& a, const Author& b) {
    const std::size_t fewer = std::min(a.given.size(), b.given.size());
    for (std::size_t i = 0; i < fewer; ++i) {
        if (!fits(a.given[i], b.given[i])) return Likeness::none;
    }
    if (a.given != b.given) return Likeness::alike;
    const bool is_whole = fewer > 1 || (fewer == 1 && a.given[0].size() > 1) || !a.is_name;
    return is_whole ? Likeness::same : Likeness::alike;
}

Likeness likeness(const Author& a, const Author& b) {
    if (a.suffix != b.suffix) return Likeness::none;
    const bool has_same_surname =
        a.surname == b.surname || a.with_umlauts == b.surname || a.surname == b.with_umlauts;
    if (has_same_surname && !a.surname.empty()) return likeness_of_given_names(a, b);
    const bool has_same_words = !a.all_words.empty() && a.all_words == b.all_words;
    return has_same_words ? Likeness::alike : Likeness::none;
}

/// Keys of the list, of which people have one in common who may be the same.
std::vector<Key> keys_of(const std::vector<Author>& authors) {
    std::vector<Key> keys;
    keys.reserve(2 * authors.size());
    for (std::size_t i = 0; i < authors.size(); ++i) {
        keys.emplace_back(key_of(authors[i]), i);
        if (!authors[i].all_words.empty()) keys.emplace_back(authors[i].all_words, i);
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

}  // namespace

std::vector<RepeatedPerson> repeated_people(const std::vector<std::string>& names) {
    constexpr std::size_t most_compared = 16;
    std::vector<Author> authors;
    authors.reserve(names.size());
    for (const std::string& name : names) authors.push_back(read_author(name));
    const std::vector<Key> keys = keys_of(authors);
    std::vector<RepeatedPerson> people;
    std::size_t begin = 0;  // of those with one key
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[begin].first != keys[i].first) begin = i;
        for (std::size_t k = begin; k < std::min(i, begin + most_compared); ++k) {
            const Likeness found = likeness(authors[keys[k].second], authors[keys[i].second]);
            if (found == Likeness::none) continue;
            people.push_back({keys[i].second, keys[k].second, found == Likeness::same});
            if (found == Likeness::same) break;
        }
    }
    // Of several the surest, and of these the first.
    std::sort(people.begin(), people.end(), [](const RepeatedPerson& a, const RepeatedPerson& b) {
        return std::tuple(a.index, !a.is_sure, a.before) <
               std::tuple(b.index, !b.is_sure, b.before);
    });
    const auto end = std::unique(
        people.begin(), people.end(),
        [](const RepeatedPerson& a, const RepeatedPerson& b) { return a.index == b.index; });
    people.erase(end, people.end());
    return people;
}

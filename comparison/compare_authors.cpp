#include "comparison/compare_authors.h"

#include <algorithm>
#include <functional>

#include "comparison/Author.h"
#include "comparison/KeyedPairing.h"
#include "comparison/compare_plain_texts.h"
#include "comparison/longest_run.h"

namespace {

using Authors = std::vector<Author>;
using Reason = Finding::Reason;
using Key = std::string (*)(const Author&);

/// The surname with these initials; nothing where there is no surname.
std::string named(const std::string& surname, const std::string& initials) {
    return surname.empty() ? "" : surname + '|' + initials;
}
std::string with_all(const Author& author) { return named(author.surname, author.initials()); }
std::string with_first(const Author& author) { return named(author.core, author.initials(1)); }
std::string with_none(const Author& author) { return named(author.core, ""); }
/// That of authors with so many given names.
std::string if_none(const Author& author) { return author.given.empty() ? with_none(author) : ""; }
std::string if_any(const Author& author) { return author.given.empty() ? "" : with_none(author); }
std::string if_one(const Author& author) {
    return author.given.size() == 1 ? with_first(author) : "";
}
std::string if_more(const Author& author) {
    return author.given.size() > 1 ? with_first(author) : "";
}

/// How authors are paired, the best first. No row can take from another what that one's mirror
/// image would leave.
constexpr struct {
    Key left, right;
} rows[] = {
    {[](const Author& a) { return std::string(a.text); },
     [](const Author& a) { return std::string(a.text); }},
    {[](const Author& a) { return with_all(a) + '|' + a.suffix; },
     [](const Author& a) { return with_all(a) + '|' + a.suffix; }},
    {with_all, with_all},
    {[](const Author& a) { return named(a.core, a.initials()); },
     [](const Author& a) { return named(a.core, a.initials()); }},
    {[](const Author& a) { return a.all_words; }, [](const Author& a) { return a.all_words; }},
    {[](const Author& a) { return a.last_word; }, [](const Author& a) { return a.last_word; }},
    {[](const Author& a) { return named(a.with_umlauts, a.initials()); }, with_all},
    {with_all, [](const Author& a) { return named(a.with_umlauts, a.initials()); }},
    {if_one, if_more},
    {if_more, if_one},
    {[](const Author& a) { return named(a.core, a.initials(2)); },
     [](const Author& a) { return named(a.core, a.initials(2)); }},
    {if_none, if_any},
    {if_any, if_none},
    {with_first, with_first},
    {with_none, with_none},
};

KeyedPairing paired(const Authors& left, const Authors& right) {
    KeyedPairing pairing(left.size(), right.size());
    const auto keys = [](const Authors& authors, Key key) {
        KeyedPairing::Keys result;
        for (const Author& author : authors) result.push_back(key(author));
        return result;
    };
    for (const auto& row : rows) pairing.pair(keys(left, row.left), keys(right, row.right));
    return pairing;
}

/// Whether one stands for the other: "a" or "anne".
bool fits(const std::string& a, const std::string& b) {
    return a.starts_with(b) || b.starts_with(a);
}

/// Why two names are not the same, which belong to one person as far as can be told.
Reason reason_for(const Author& left, const Author& right) {
    if (left.suffix != right.suffix) return Reason::author_contradicted;
    const auto same = [](const std::string& a, const std::string& b) {
        return !a.empty() && a == b;
    };
    const bool has_same_words =
        same(left.all_words, right.all_words) ||
        (left.surname != right.surname && same(left.last_word, right.last_word));
    const bool are_fewer = left.given.size() < right.given.size();
    const auto& fewer = are_fewer ? left.given : right.given;
    const auto& more = are_fewer ? right.given : left.given;
    std::size_t next = 0;  // of the fewer ones
    for (const std::string& name : more) {
        if (next < fewer.size() && fits(name, fewer[next])) ++next;
    }
    if (next < fewer.size() && !has_same_words) return Reason::author_contradicted;
    if (fewer.size() < more.size() && !has_same_words) return Reason::author_initials;
    const bool has_same_surname =
        left.surname == right.surname || left.with_umlauts == right.surname ||
        left.surname == right.with_umlauts || same(left.all_words, right.all_words);
    return has_same_surname ? Reason::author_form : Reason::author_particles;
}

/// Which authors keep their places, of those on the left that have partners.
std::vector<bool> kept(const Authors& left, const Authors& right, const KeyedPairing& pairing) {
    std::vector<std::size_t> places(right.size());  // among those that have partners
    std::size_t place = 0;
    for (std::size_t i = 0; i < right.size(); ++i) {
        if (pairing.partners_of_right()[i]) places[i] = place++;
    }
    std::vector<std::size_t> authors, places_in_turn;
    std::vector<std::string_view> names;
    for (std::size_t i = 0; i < left.size(); ++i) {
        const auto partner = pairing.partners_of_left()[i];
        if (!partner) continue;
        authors.push_back(i);
        places_in_turn.push_back(places[*partner]);
        names.push_back(std::min(left[i].text, right[*partner].text));
    }
    const std::vector<bool> run = longest_ascending_run(places_in_turn, names);
    std::vector<bool> result(left.size());
    for (std::size_t i = 0; i < authors.size(); ++i) result[authors[i]] = run[i];
    return result;
}

double place_of(std::size_t index) { return static_cast<double>(index + 1); }

/// Appends what there is to say of two who are paired: nothing, or one thing.
void compare_pair(const Author& left, const Author& right, const std::optional<Finding>& moved,
                  const ComparisonPolicy& policy, std::vector<Finding>& findings) {
    std::optional<Finding> finding = moved;
    if (left.text != right.text) {
        const Reason reason = reason_for(left, right);
        if (!moved || (!policy.allows(reason))) finding = Finding{reason, left.range, right.range};
    }
    if (!finding) return;
    finding->subject = std::min(left.text, right.text);
    findings.push_back(*finding);
}

std::vector<StringSlice> ranges_of(const Authors& authors) {
    std::vector<StringSlice> ranges;
    for (const Author& author : authors) ranges.push_back(author.range);
    return ranges;
}

std::vector<Finding> compare_lists(const Authors& left, const Authors& right,
                                   const ComparisonPolicy& policy) {
    const KeyedPairing pairing = paired(left, right);
    const KeyedPairing::Partners& partners = pairing.partners_of_left();
    const auto right_places = places_among(ranges_of(right), partners);
    const auto left_places = places_among(ranges_of(left), pairing.partners_of_right());
    const std::vector<bool> keep = kept(left, right, pairing);
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::optional<Finding> moved;
        if (partners[i]) {
            const Author& partner = right[*partners[i]];
            if (!keep[i]) {
                moved = Finding{Reason::author_moved, left[i].range, partner.range};
                moved->left_number = place_of(i);
                moved->right_number = place_of(*partners[i]);
            }
            compare_pair(left[i], partner, moved, policy, findings);
        } else {
            const StringSlice place(right_places[i], right_places[i]);
            findings.push_back({Reason::author_missing, left[i].range, place});
            findings.back().subject = left[i].text;
            findings.back().left_number = place_of(i);
        }
    }
    for (std::size_t i = 0; i < right.size(); ++i) {
        if (pairing.partners_of_right()[i]) continue;
        const StringSlice place(left_places[i], left_places[i]);
        findings.push_back({Reason::author_added, place, right[i].range});
        findings.back().subject = right[i].text;
        findings.back().right_number = place_of(i);
    }
    return findings;
}

bool has_name(const Authors& authors) {
    return std::any_of(authors.begin(), authors.end(),
                       [](const Author& author) { return author.is_name; });
}

}  // namespace

std::vector<Finding> compare_authors(const ComparedText& left, const ComparedText& right,
                                     const ComparisonPolicy& policy) {
    const Authors left_authors = read_authors(left.shown());
    const Authors right_authors = read_authors(right.shown());
    std::vector<Finding> findings;
    if (has_name(left_authors) && has_name(right_authors)) {
        findings = compare_lists(left_authors, right_authors, policy);
    }
    // Or what stands between the names differs.
    return findings.empty() ? compare_plain_texts(left, right, policy) : findings;
}

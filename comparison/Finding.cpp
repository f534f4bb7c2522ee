#include "comparison/Finding.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Kind = Finding::Kind;
using Reason = Finding::Reason;

constexpr FindingReason rows[] = {
    {Reason::insertion, "insertion", Kind::text, "characters that the right side alone has"},
    {Reason::deletion, "deletion", Kind::text, "characters that the left side alone has"},
    {Reason::replacement, "replacement", Kind::text, "other characters"},
    {Reason::letter_case, "case", Kind::text, "capitals and small letters"},
    {Reason::first_letter_case, "first-letter-case", Kind::text,
     "a capital or a small letter as the first of a text"},
    {Reason::accent, "accent", Kind::text, "accents, and letters such as ß for ss"},
    {Reason::dash, "dash", Kind::text, "hyphens, dashes and minus signs"},
    {Reason::apostrophe, "apostrophe", Kind::text,
     "primes, apostrophes and quotation marks, one for another"},
    {Reason::greek, "greek", Kind::text, "a Greek letter, its name or its code"},
    {Reason::blank, "blank", Kind::text, "blanks and line ends: other ones, more or none"},
    {Reason::punctuation, "punctuation", Kind::text, "other punctuation, more or none"},
    {Reason::script, "script", Kind::text,
     "the same characters, raised, lowered or barred otherwise"},
    {Reason::coding, "coding", Kind::text, "the same characters in other bytes, bold or italic"},
    {Reason::number_within_limit, "number-within-limit", Kind::number,
     "numbers that differ by no more than is allowed"},
    {Reason::number_beyond_limit, "number-beyond-limit", Kind::number,
     "numbers that differ by more"},
    {Reason::number_added, "number-added", Kind::number, "a number that the right side alone has"},
    {Reason::number_missing, "number-missing", Kind::number,
     "a number that the left side alone has"},
    {Reason::element, "element", Kind::formula, "how often an element is there"},
    {Reason::element_order, "order", Kind::formula, "the same elements in another order"},
    {Reason::moiety_against_sum, "moiety-sum", Kind::formula,
     "moieties, and a sum of the same composition"},
    {Reason::charge, "charge", Kind::formula, "the charge of a moiety"},
    {Reason::multiplier, "multiplier", Kind::formula, "how often a moiety is there"},
    {Reason::author_form, "author-form", Kind::author,
     "the same name: accents, order, given names that fit the initials"},
    {Reason::author_particles, "author-particles", Kind::author,
     "the same name with another particle, or with a part of the surname"},
    {Reason::author_initials, "author-initials", Kind::author,
     "the same surname with more initials or fewer"},
    {Reason::author_contradicted, "author-contradicted", Kind::author,
     "the same surname with initials or a suffix that contradict"},
    {Reason::author_moved, "author-moved", Kind::author, "an author in another place"},
    {Reason::author_added, "author-added", Kind::author, "an author whom the right side alone has"},
    {Reason::author_missing, "author-missing", Kind::author,
     "an author whom the left side alone has"},
    {Reason::journal_form, "journal-form", Kind::reference,
     "the same journal, abbreviated or written otherwise"},
    {Reason::journal, "journal", Kind::reference, "another journal"},
    {Reason::volume, "volume", Kind::reference, "another volume"},
    {Reason::year, "year", Kind::reference, "another year"},
    {Reason::first_page, "first-page", Kind::reference, "another page"},
    {Reason::last_page, "last-page", Kind::reference, "another last page"},
    {Reason::group_notation, "group-notation", Kind::space_group,
     "the same space group in another notation"},
    {Reason::group_setting, "group-setting", Kind::space_group,
     "the same space group in another setting"},
    {Reason::group, "group", Kind::space_group, "another space group"},
};

constexpr bool rows_are_in_value_order() {
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        if (rows[i].reason != static_cast<Reason>(i)) return false;
    }
    return std::size(rows) == Finding::reasons;
}
static_assert(rows_are_in_value_order(), "every reason has one row");

/// Reasons that are each other's mirror images.
constexpr std::pair<Reason, Reason> mirrors[] = {
    {Reason::insertion, Reason::deletion},
    {Reason::number_added, Reason::number_missing},
    {Reason::author_added, Reason::author_missing},
};

Reason mirrored(Reason reason) {
    for (const auto& [right, left] : mirrors) {
        if (reason == right) return left;
        if (reason == left) return right;
    }
    return reason;
}

}  // namespace

Finding Finding::mirrored() const {
    Finding mirror = *this;
    mirror.reason = ::mirrored(reason);
    std::swap(mirror.left, mirror.right);
    std::swap(mirror.left_number, mirror.right_number);
    return mirror;
}

std::span<const FindingReason> finding_reasons() { return rows; }

const FindingReason& reason_of(const Finding& finding) {
    return rows[static_cast<std::size_t>(finding.reason)];
}

const char* name_of(Finding::Kind kind) {
    constexpr const char* names[] = {"text",   "number",    "formula",
                                     "author", "reference", "space-group"};
    return names[static_cast<std::size_t>(kind)];
}

const char* name_of(Verdict verdict) {
    constexpr const char* names[] = {"equal", "equivalent", "different", "only-left", "only-right"};
    return names[static_cast<std::size_t>(verdict)];
}

std::string words_of(Verdict verdict) {
    std::string words = name_of(verdict);
    std::replace(words.begin(), words.end(), '-', ' ');
    return words;
}

#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "text/StringSlice.h"

/// How two texts of a field stand to each other.
enum class Verdict {
    equal,       ///< Byte by byte.
    equivalent,  ///< They differ in nothing that counts.
    different,   ///< They do.
    only_left,   ///< The right side has no text,
    only_right,  ///< and here the left side.
};

/// One thing in which two texts of a field differ: where, why, and whether it counts.
struct Finding {
    /// What kind of thing it is about.
    enum class Kind { text, number, formula, author, reference, space_group };

    /// Why the two sides differ. Swapping the sides turns added into missing, and nothing else.
    enum class Reason {
        insertion,            ///< Characters that the right side alone has.
        deletion,             ///< Characters that the left side alone has.
        replacement,          ///< Other characters.
        letter_case,          ///< Capitals and small letters.
        first_letter_case,    ///< The same, of the first letter of the text.
        accent,               ///< Letters with other accents or none, ß for ss and the like.
        dash,                 ///< A hyphen, a dash, a minus.
        apostrophe,           ///< A prime, an apostrophe, a quotation mark: one for another.
        greek,                ///< A Greek letter and its name, or the letter otherwise coded.
        blank,                ///< Blanks and line ends: other ones, more or none.
        punctuation,          ///< Other punctuation, more or none.
        script,               ///< The same characters, raised, lowered or barred otherwise.
        coding,               ///< The same characters, in other bytes or another face.
        number_within_limit,  ///< Numbers; the difference is within what is allowed.
        number_beyond_limit,  ///< Numbers; it is not.
        number_added,         ///< A number that the right side alone has.
        number_missing,       ///< A number that the left side alone has.
        element,              ///< Other counts of an element; the numbers are the counts.
        element_order,        ///< The same elements and counts in another order.
        moiety_against_sum,   ///< Moieties, and a sum of the same composition.
        charge,               ///< Other charges of a moiety; the numbers are the charges.
        multiplier,           ///< Other numbers of a moiety; the numbers are these.
        author_form,          ///< The same name, written otherwise: accents, order, given names.
        author_particles,     ///< The same name with another particle, or a part of the surname.
        author_initials,      ///< The same surname with more initials or fewer.
        author_contradicted,  ///< The same surname with other initials, or another suffix.
        author_moved,         ///< The same author; the numbers are the places, from 1.
        author_added,         ///< An author whom the right side alone has; its number is the place.
        author_missing,       ///< An author whom the left side alone has; its number is the place.
        journal_form,         ///< The same journal, abbreviated or written otherwise.
        journal,              ///< Another journal, or none on one side.
        volume,               ///< Likewise of the other parts of a reference.
        year,                 ///<
        first_page,           ///<
        last_page,            ///<
        group_notation,       ///< The same space group in the same setting, written otherwise.
        group_setting,        ///< The same space group in another setting.
        group,                ///< Another space group.
    };
    static constexpr std::size_t reasons = static_cast<std::size_t>(Reason::group) + 1;

    Reason reason;
    /// The characters that it is about, in positions of either item's text; an empty range stands
    /// where that side has nothing.
    /// @{
    StringSlice left, right;
    /// @}
    bool is_equivalent = false;  ///< It does not count.
    bool is_coarse = false;      ///< Less may differ: to find the least would cost too much.
    std::string subject{};       ///< What it is about, as it is shown: "H", "a", "A.J.Smith".
    /// What either side says, where the reason says so.
    /// @{
    std::optional<double> left_number{}, right_number{};
    /// @}
    std::optional<double> sigmas{};  ///< The difference in combined standard uncertainties.
    std::optional<double> limit{};   ///< What was allowed: as many of these, or a difference.

    friend bool operator==(const Finding&, const Finding&) = default;

    /// The same finding with the sides exchanged.
    Finding mirrored() const;
};

/// A set of reasons, by their values.
using FindingReasons = std::bitset<Finding::reasons>;

/// The set of these.
template <class... Reasons>
FindingReasons reasons_of(Reasons... reasons) {
    FindingReasons set;
    (set.set(static_cast<std::size_t>(reasons)), ...);
    return set;
}

/// What is known of a reason.
struct FindingReason {
    Finding::Reason reason;
    const char* name;  ///< One word, hyphens in it: "first-letter-case".
    Finding::Kind kind;
    const char* help;  ///< What differs; one line, without a full stop.
};

/// All reasons, in the order of their values.
std::span<const FindingReason> finding_reasons();
/// That of a finding.
const FindingReason& reason_of(const Finding& finding);

/// "text", "number", "formula", "author", "reference" or "space-group".
const char* name_of(Finding::Kind kind);
/// "equal", "equivalent", "different", "only-left" or "only-right".
const char* name_of(Verdict verdict);
/// The same in words: "only left".
std::string words_of(Verdict verdict);

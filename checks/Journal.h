#pragma once

#include <span>
#include <string>
#include <string_view>

/// A journal that crystal structures are published in.
struct Journal {
    const char* name;
    const char* abbreviation = "";  ///< Empty where there is none.
    bool counts_years = false;      ///< Its volumes are years, or have been.
};

/// All that are known, in any order.
std::span<const Journal> known_journals();

/// A journal that a name may stand for.
struct JournalMatch {
    const Journal* journal = nullptr;  ///< Null: none.
    std::string_view spelling{};       ///< The name or the abbreviation that was meant.
    std::string wrong_word{};          ///< Folded; empty where the name is right.
    std::string right_word{};          ///< Likewise; it stands in `spelling`.
};

/// The journal with that name or abbreviation, else the only one from which it differs by one
/// letter of one word of five letters or more: another, one more, one less, or two that changed
/// places. Linear in the length and in the number of journals.
JournalMatch find_journal(std::string_view name);

#pragma once

#include <optional>
#include <span>
#include <string>

#include "comparison/folding.h"
#include "host/THandle.h"
#include "search/TextSearch.h"

/// The settings that some of the searches have.
struct SearchSettings {
    std::string tolerance = "0";        // between numbers; a whole number allows for rounding
    unsigned int min_match_length = 3;  // of common substrings, in characters
    std::optional<Folding> folding{};   // of texts and terms; none: they are taken as they are
};

/// One way to compare a term with a text.
struct SearchKind {
    const char* name;
    const char* help;
    bool keeps_lines;  ///< Line ends are no blanks to it, however texts are folded.
    THandle<TextSearch> (*make_search)(const SearchSettings& settings);
    /// Whether the term holds what the search looks for; otherwise all texts or none would match.
    bool (*takes)(const std::string& term);
};

std::span<const SearchKind> search_kinds();

/// The search of that kind, which folds where the settings say so.
THandle<TextSearch> make_search(const SearchKind& kind, const SearchSettings& settings);

/// Whether `tolerance` is a finite number of at least 0.
bool is_tolerance(const std::string& tolerance);

#pragma once

#include <span>
#include <string>

#include "host/THandle.h"
#include "search/TextSearch.h"

/// The settings that some of the searches have.
struct SearchSettings {
    std::string tolerance = "0";        // between numbers; a whole number allows for rounding
    unsigned int min_match_length = 3;  // of common substrings, in characters
};

/// One way to compare a term with a text.
struct SearchKind {
    const char* name;
    const char* help;
    THandle<TextSearch> (*make_search)(const SearchSettings& settings);
    /// For whole texts as terms: the same search, or one like it that costs less.
    THandle<TextSearch> (*make_comparison)(const SearchSettings& settings);
    /// Whether the term holds what the search looks for; otherwise all texts or none would match.
    bool (*takes)(const std::string& term);
};

std::span<const SearchKind> search_kinds();

/// Whether `tolerance` is a finite number of at least 0.
bool is_tolerance(const std::string& tolerance);

#pragma once

#include <span>
#include <string>

#include "app/Output.h"
#include "app/SearchKind.h"
#include "app/Source.h"
#include "app/TextBatch.h"

/// What search writes: the targets, of which some can show its matches, and the ranges.
std::span<const Output> search_outputs();

struct SearchOptions {
    const SearchKind* how = nullptr;
    SearchSettings settings;
    std::string term;
    const Source* from = nullptr;
    const Output* to = nullptr;
    bool only_matching = false;  // leaves out the texts that do not match
    TextBatch batch;
};

struct SearchOutcome {
    bool matched;  // some text as a whole, or a range of one
    bool good;     // nothing was reported
};

/// Searches text by text and writes each with its matches highlighted, or a line of "true" or
/// "false", what the search returned, and the ranges as FROM-TO, in bytes from 0, TO not included.
/// A text that fails is reported and leaves an empty text in its place. Throws std::system_error
/// when the output cannot be written.
SearchOutcome search(const SearchOptions& options);

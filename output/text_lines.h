#pragma once

#include "output/Output.h"
#include "output/TextPositions.h"
#include "output/TextProcess.h"
#include "tasks/Losses.h"
#include "tasks/SearchKind.h"
#include "tasks/Source.h"

struct ConvertOptions {
    const Source* from = nullptr;
    const RichTextTarget* to = nullptr;
    unsigned int line_length = 0;      ///< In characters; 0 breaks no lines.
    const AsciiForm* ascii = nullptr;  ///< Of `to`, where nothing else shall be written.
};

/// Converts text by text; one that fails leaves an empty text.
std::unique_ptr<TextProcess> make_conversion(const ConvertOptions& options);

/// What search writes: the targets, of which some can show its matches, and the ranges.
std::span<const Output> search_outputs();

struct SearchOptions {
    const SearchKind* how = nullptr;
    SearchSettings settings;
    std::string term;
    const Source* from = nullptr;
    const Output* to = nullptr;
    std::optional<TextPositions> positions;  ///< Of the ranges; none: bytes of the text.
    bool only_matching = false;              ///< Leaves out the texts that do not match, or fail.
};

/// Searches text by text and writes each with its matches highlighted, or a line of "true" or
/// "false", what the search returned, and the ranges as FROM-TO, from 0, TO not included.
std::unique_ptr<TextProcess> make_search(const SearchOptions& options);

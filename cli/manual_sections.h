#pragma once

#include <span>

/// What the manual says beyond the commands and their values, which tell of themselves.
struct ManualSection {
    /// Something, and what is said of it.
    struct Entry {
        const char* term;
        const char* text;
    };

    const char* title;  ///< As in a sentence; manual pages have capitals.
    enum class Form {
        definitions,  ///< The terms are what is typed or read.
        commands,     ///< The terms are sentences, the texts commands.
        list,         ///< The terms alone.
    };
    Form form;
    std::span<const Entry> entries;
};

/// All sections, in the order of manual pages.
std::span<const ManualSection> manual_sections();

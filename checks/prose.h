#pragma once

#include <string_view>

/// What people have written in an item.
enum class Prose {
    none,     ///< Numbers, words of a program, files embedded.
    name,     ///< The name of a substance, a journal or a person, or a title.
    running,  ///< Sentences.
};

/// What the item with that tag, in lower case, holds.
Prose prose_of(std::string_view tag);

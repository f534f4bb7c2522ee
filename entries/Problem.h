#pragma once

#include <cstddef>
#include <optional>
#include <string>

/// Something that is wrong, or worth knowing, about what was read or done: what was found where and
/// what was expected, for a front end to make a sentence of.
struct Problem {
    enum class Level {
        note,     ///< Worth knowing.
        warning,  ///< The result stands, and may not be what was meant.
        error,    ///< Something is missing from the result.
    };

    Level level = Level::error;
    const char* code = "";   ///< What checks call it for good, "pages-reversed"; empty: nothing.
    bool is_of_run = false;  ///< Of all that is done, not of one text: to be said once.
    std::string file;        ///< As the user named it; empty where the front end knows.
    unsigned long line = 0;  ///< From 1; 0: not known. For lists of texts, the number of the text.
    unsigned long column = 0;           ///< In bytes, from 1; 0: not known.
    std::optional<std::size_t> offset;  ///< In bytes of the file, from 0: more closely than `line`.
    std::optional<std::string> block;   ///< The name of the data block.
    std::optional<std::string> other_block;  ///< The name of the one that it is compared with.
    std::string item;                        ///< The item of the block, or the label of the field.
    std::string what;                        ///< What is wrong, where the other two do not say it.
    std::string found;                       ///< What stands there, as it stands.
    std::string expected;                    ///< What should: "a number".
};

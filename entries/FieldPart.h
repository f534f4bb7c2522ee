#pragma once

#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "entries/BlockReader.h"

/// A part of the text of a field that one item of a CIF file holds.
struct FieldPart {
    /// How a text is written.
    enum Kind {
        text,      ///< Any text, with its codes.
        name,      ///< Likewise, one that is broken over lines at its hyphens.
        plain,     ///< Any text, in UTF-8.
        words,     ///< Likewise, but no number.
        page,      ///< Likewise, with a digit, without blanks or tags.
        formula,   ///< Of a compound.
        number,    ///< With or without its uncertainty, and its unit behind it.
        range,     ///< Likewise, or two with a dash between.
        density,   ///< Likewise; what has no digits says nothing.
        quantity,  ///< Likewise, or any text without < and >.
        printed,   ///< A number as records print it.
        count,     ///< A number without decimals.
        per_cent,  ///< A number that is a fraction in the file.
        date,      ///< Year, month and day.
        numbers,   ///< Those of all rows of a loop.
        computed,  ///< No item holds it.
    };

    /// The items that hold it, as they are usually written, those to be preferred first.
    std::string_view names[4];
    Kind kind = plain;      ///< What stands there.
    const char* unit = "";  ///< Shown behind numbers.
    /// Those that may stand behind numbers besides and are not shown, that which is meant first.
    std::string_view other_units[2] = {};
    /// Numbers are between these; what stands in files may be any.
    /// @{
    double above = -std::numeric_limits<double>::infinity();
    double below = std::numeric_limits<double>::infinity();
    /// @}

    /// Those of its names that there are.
    Tags tags() const {
        std::size_t size = 0;
        while (size < std::size(names) && !names[size].empty()) ++size;
        return {names, size};
    }
};

/// The text of a part as the field shows it; empty where the block has none. Problems of the values
/// are noted.
std::string text_of(BlockReader& block, const FieldPart& part);

/// A text of a part in the form in which text_of() gives it, or as it stands if it is none.
std::string normal_text(const FieldPart& part, const std::string& text);
/// What an item has to say for the part to be `text`; nothing where it cannot. `is_version_2`: in a
/// file of CIF 2, which holds UTF-8 as it is.
std::optional<std::string> value_of(const FieldPart& part, const std::string& text,
                                    bool is_version_2);
/// What value_of() accepts, in words: "a number in K".
std::string expected_of(const FieldPart& part);

#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "comparison/ComparedText.h"
#include "text/StringSlice.h"

/// What a text is cut into to be compared: a character with its accents, a number's digits, blanks
/// in a row, the name of a Greek letter, or what is raised, lowered or barred together.
struct TextUnit {
    enum class Class : std::uint8_t { letter, digits, blank, punctuation, other };

    unsigned int from, to;  ///< In the shown text.
    std::uint32_t key;      ///< Equal where units are, but for what may not count.
    signed char valign;     ///< Raised above 0, lowered below, also by the characters themselves.
    bool is_barred;
    Class kind;

    StringSlice place() const { return {from, to}; }
    /// Whether it is a part of words.
    bool is_of_word() const { return kind == Class::letter || kind == Class::digits; }
};
using TextUnits = std::vector<TextUnit>;

/// A range of a text, cut.
struct CutText {
    const ComparedText& text;
    StringSlice range;  ///< Of the shown text.
    TextUnits units;    ///< In order and without gaps.

    /// Where the units [from, to) stand; where they would, if there are none.
    StringSlice place(std::size_t from, std::size_t to) const {
        const unsigned int begin = from < units.size() ? units[from].from : range.to();
        return {begin, from == to ? begin : units[to - 1].to};
    }
    std::string_view shown(const TextUnit& unit) const {
        return text.shown().substr(unit.from, unit.to - unit.from);
    }
};

/// Cuts texts that are compared with each other: their keys have the same meaning.
class TextCutter {
public:
    /// Cuts a range of the shown text. Linear in the range.
    CutText cut(const ComparedText& text, const StringSlice& range);

private:
    void add(TextUnits& units, std::string_view shown, const ComparedText::Script& script);
    std::uint32_t key_of(std::string_view text);

    std::unordered_map<std::string, std::uint32_t>
        keys_;  // of what is more than one ASCII character
};

#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "finders/TevoChemicalNameToTextItemGreek.h"
#include "text/Position.h"

/// Finds where the names of Greek letters stand in a text: three characters tell which may stand at
/// a position, and one load and one comparison whether they do. It never changes.
class GreekNameScanner {
public:
    GreekNameScanner();

    /// Calls found(index, position) for each name of the vocabulary that stands at a position of
    /// `text`, positions and indices ascending; names may lie in others. The text has positions.
    template <class Found>
    void scan(std::string_view text, Found found) const {
        for (std::size_t at = next_candidate(text, 0); at < text.size();
             at = next_candidate(text, at + 1)) {
            const std::uint64_t characters = characters_at(text, at);
            for (Names names = names_at(text, at); names != 0; names &= names - 1) {
                const auto i = static_cast<unsigned int>(std::countr_zero(names));
                const PackedName& name = packed_names_[i];
                if ((characters & name.mask) == name.characters) found(i, to_position(at));
            }
        }
    }

    /// Of the name of that index, names being in ascending byte order: its length and its symbol.
    /// @{
    unsigned int length(unsigned int index) const { return lengths_[index]; }
    TextItem::GreekSymbol symbol(unsigned int index) const { return symbols_[index]; }
    /// @}
    /// The index of the letter's name.
    unsigned int index(TextItem::GreekSymbol symbol) const {
        return indices_[static_cast<std::size_t>(symbol)];
    }
    /// The letter of that name, or no_symbol.
    TextItem::GreekSymbol symbol_of(const std::string& name) const {
        return vocabulary_.greek_symbol(name);
    }

private:
    struct PackedName {
        std::uint64_t characters, mask;
    };
    using Names = std::uint32_t;  // a bit for each, the lowest for the first
    using NamesOfCharacters = std::array<Names, 256>;

    Names names_with(char first, char second, char third) const {
        return with_first_[static_cast<unsigned char>(first)] &
               with_second_[static_cast<unsigned char>(second)] &
               with_third_[static_cast<unsigned char>(third)];
    }
    /// Those that may stand at a position, behind which there is another.
    Names names_at(std::string_view text, std::size_t at) const {
        return names_with(text[at], text[at + 1], at + 2 < text.size() ? text[at + 2] : '\0');
    }

    /// The first position from `position` on where the first three characters of a name stand, or
    /// the end of the text.
    std::size_t next_candidate(std::string_view text, std::size_t position) const;

    /// The next eight characters of the text, at the end of the text fewer: more than the longest
    /// name has.
    static std::uint64_t characters_at(std::string_view text, std::size_t position) {
        std::uint64_t characters = 0;
        text.remove_prefix(position);
        if (text.size() >= sizeof characters) {
            std::memcpy(&characters, text.data(), sizeof characters);  // one load
        } else {
            std::memcpy(&characters, text.data(), text.size());
        }
        return characters;
    }

    TevoChemicalNameToTextItemGreek vocabulary_;
    std::array<PackedName, TextItem::clambda> packed_names_{};
    std::array<unsigned char, TextItem::clambda> lengths_{};
    std::array<TextItem::GreekSymbol, TextItem::clambda> symbols_{};
    std::array<unsigned char, TextItem::clambda + 1> indices_{};
    // The names that have a character at their begin, and behind it; any is the third of two.
    NamesOfCharacters with_first_{}, with_second_{}, with_third_{};
};

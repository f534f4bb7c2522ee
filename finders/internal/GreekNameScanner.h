#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "finders/TevoChemicalNameToTextItemGreek.h"
#include "text/Position.h"

/// Finds where the names of Greek letters stand in a text: one load and one comparison for each
/// name that begins with the character in question. It never changes.
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
            const auto letter = static_cast<unsigned int>(text[at] - 'a');
            for (unsigned int i = first_name_[letter]; i < first_name_[letter + 1]; ++i) {
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

    /// The first position from `position` on where the first three characters of some name may
    /// stand, or the end of the text; passes over none where a name stands.
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
    std::array<unsigned char, 27> first_name_{};  // of each letter from a to z, and the end
    // By the first letter of names, each a bit of its low bits; where a name has two, any third.
    std::array<std::uint32_t, 256> second_letters_{};
    std::array<std::uint32_t, 256> third_letters_{};
};

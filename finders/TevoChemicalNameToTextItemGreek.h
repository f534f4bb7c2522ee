#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/TextItem.h"

/// The names by which the database's chemical names spell Greek letters.
class TevoChemicalNameToTextItemGreek {
public:
    /// The name of that letter, in lower case; "cdelta" and "clambda" for the capitals.
    /// @{
    static const std::string alpha_;
    static const std::string beta_;
    static const std::string gamma_;
    static const std::string delta_;
    static const std::string epsilon_;
    static const std::string zeta_;
    static const std::string eta_;
    static const std::string theta_;
    static const std::string iota_;
    static const std::string kappa_;
    static const std::string lambda_;
    static const std::string mu_;
    static const std::string nu_;
    static const std::string xi_;
    static const std::string omicron_;
    static const std::string pi_;
    static const std::string rho_;
    static const std::string sigma_;
    static const std::string tau_;
    static const std::string upsilon_;
    static const std::string phi_;
    static const std::string chi_;
    static const std::string psi_;
    static const std::string omega_;
    static const std::string capital_delta_;
    static const std::string capital_lambda_;
    /// @}

    TevoChemicalNameToTextItemGreek();

    /// The names in ascending byte order.
    const std::vector<std::string>& tevo_chemical_name_greek() const { return names_; }
    /// The indices [first, last) of the names that begin with `letter`; none where it is not one of
    /// a to z.
    std::pair<unsigned int, unsigned int> names_beginning_with(char letter) const {
        if (letter < 'a' || letter > 'z') return {0, 0};
        const auto index = static_cast<unsigned int>(letter - 'a');
        return {first_name_[index], first_name_[index + 1]};
    }
    /// The first position from `position` on where the first two characters of some name may stand,
    /// or the end of the text; passes over none where a name stands.
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
    /// Whether the name of that index begins such characters.
    bool begins(unsigned int index, std::uint64_t characters) const {
        return (characters & packed_names_[index].mask) == packed_names_[index].characters;
    }
    /// The symbol of the name of that index.
    TextItem::GreekSymbol symbol_of(unsigned int index) const { return symbols_[index]; }
    /// The symbol of exactly that name, or no_symbol.
    TextItem::GreekSymbol greek_symbol(const std::string& name) const;

private:
    struct PackedName {
        std::uint64_t characters, mask;
    };

    std::vector<std::string> names_;
    std::array<PackedName, TextItem::clambda> packed_names_{};
    std::array<TextItem::GreekSymbol, TextItem::clambda> symbols_{};
    std::array<unsigned char, 27> first_name_{};       // of each letter from a to z, and the end
    std::array<std::uint32_t, 256> second_letters_{};  // by the first, each a bit of its low bits
};

#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text/StringSlice.h"

/// A chemical formula, a sum or moieties: "C22 H20 N2 O4", "Mg 2+, 2I -", "0.5(H2 O1)",
/// "(C2 H4)n", "CuSO4.5H2O". Any capital with up to one small letter is an element, so that what
/// is mistyped is compared too. Ranges are of the text that was read, to which it refers.
struct Formula {
    /// How often something is there, or a charge: "2", "0.5", "1/3", "2n", "1-x", "2+".
    struct Count {
        double value = 1;         ///< An unknown has a value of its own, the same in all formulae.
        bool is_known = true;     ///< It has no unknowns.
        StringSlice range{0, 0};  ///< Empty where the count is not written.
    };

    /// An element or a bracket.
    struct Token {
        enum Kind { element, opening, closing };
        Kind kind;
        std::string_view symbol;  ///< "Cl"; empty for a bracket.
        StringSlice range;        ///< With the count; from the opening bracket to a closing one.
        Count count{};            ///< An opening bracket has none.
        double total = 0;         ///< How many of the element the moiety has here.
        bool total_is_known = true;
    };

    /// What stands between commas or dots.
    struct Moiety {
        StringSlice range{0, 0};    ///< All of it.
        Count multiplier;           ///< In front, or behind the brackets around all of it.
        std::vector<Token> tokens;  ///< Without these brackets; one element at least.
        std::vector<Count> charges;

        /// From the first token to the last.
        StringSlice content() const {
            return {tokens.front().range.from(), tokens.back().range.to()};
        }
    };

    std::vector<Moiety> moieties;  ///< One at least.
};

/// The formula that the text is; nothing where it is none. Linear in the length.
std::optional<Formula> read_formula(std::string_view text);

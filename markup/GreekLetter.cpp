#include "markup/GreekLetter.h"

#include <iterator>
#include <stdexcept>

namespace {

// In value order. CIF output writes delta with phi's code: readers rely on it.
constexpr GreekLetter letters[] = {
    {"", "", nullptr, ""},
    {"alpha", "\\a", "a", "α"},
    {"beta", "\\b", "b", "β"},
    {"gamma", "\\g", "g", "γ"},
    {"delta", "\\f", "d", "δ"},  // CIF output writes delta as phi's
                                 // code; readers rely on it
    {"epsilon", "\\e", "e", "ε"},
    {"zeta", "\\z", "z", "ζ"},
    {"eta", "\\h", "h", "η"},
    {"theta", "\\q", "q", "θ"},
    {"iota", "\\i", "i", "ι"},
    {"kappa", "\\k", "k", "κ"},
    {"lambda", "\\l", "l", "λ"},
    {"mu", "\\m", "m", "μ"},
    {"nu", "\\n", "n", "ν"},
    {"xi", "\\x", "x", "ξ"},
    {"omicron", "\\o", "o", "ο"},
    {"pi", "\\p", "p", "π"},
    {"rho", "\\r", "r", "ρ"},
    {"sigma", "\\s", "s", "σ"},
    {"tau", "\\t", "t", "τ"},
    {"upsilon", "\\u", "u", "υ"},
    {"phi", "\\f", "f", "φ"},
    {"chi", "\\c", "c", "χ"},
    {"psi", "\\y", "y", "ψ"},
    {"omega", "\\w", "w", "ω"},
    {"cdelta", "\\D", "D", "Δ"},
    {"clambda", "\\L", "L", "Λ"},
};
static_assert(std::size(letters) == TextItem::clambda + 1, "every symbol has one row");

}  // namespace

std::string greek_text(TextItem::GreekSymbol symbol, const char* GreekLetter::*spelling,
                       const char* converter) {
    const auto value = static_cast<unsigned int>(symbol);
    if (value >= std::size(letters) || !(letters[value].*spelling)) {
        throw std::range_error(std::string("Unknown sym. ") + converter);
    }
    return letters[value].*spelling;
}

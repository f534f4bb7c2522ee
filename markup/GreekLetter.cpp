#include "markup/GreekLetter.h"

#include <iterator>
#include <stdexcept>

namespace {

// In value order. CIF output writes delta with phi's code: readers rely on it.
constexpr GreekLetter letters[] = {
    {"", "", nullptr, "", ""},
    {"alpha", "\\a", "a", "α", "$\\alpha$"},
    {"beta", "\\b", "b", "β", "$\\beta$"},
    {"gamma", "\\g", "g", "γ", "$\\gamma$"},
    {"delta", "\\f", "d", "δ", "$\\delta$"},
    {"epsilon", "\\e", "e", "ε", "$\\epsilon$"},
    {"zeta", "\\z", "z", "ζ", "$\\zeta$"},
    {"eta", "\\h", "h", "η", "$\\eta$"},
    {"theta", "\\q", "q", "θ", "$\\theta$"},
    {"iota", "\\i", "i", "ι", "$\\iota$"},
    {"kappa", "\\k", "k", "κ", "$\\kappa$"},
    {"lambda", "\\l", "l", "λ", "$\\lambda$"},
    {"mu", "\\m", "m", "μ", "$\\mu$"},
    {"nu", "\\n", "n", "ν", "$\\nu$"},
    {"xi", "\\x", "x", "ξ", "$\\xi$"},
    {"omicron", "\\o", "o", "ο", "$o$"},
    {"pi", "\\p", "p", "π", "$\\pi$"},
    {"rho", "\\r", "r", "ρ", "$\\rho$"},
    {"sigma", "\\s", "s", "σ", "$\\sigma$"},
    {"tau", "\\t", "t", "τ", "$\\tau$"},
    {"upsilon", "\\u", "u", "υ", "$\\upsilon$"},
    {"phi", "\\f", "f", "φ", "$\\phi$"},
    {"chi", "\\c", "c", "χ", "$\\chi$"},
    {"psi", "\\y", "y", "ψ", "$\\psi$"},
    {"omega", "\\w", "w", "ω", "$\\omega$"},
    {"cdelta", "\\D", "D", "Δ", "$\\Delta$"},
    {"clambda", "\\L", "L", "Λ", "$\\Lambda$"},
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

#include "finders/CifChemicalNameStyleFinder.h"

#include <algorithm>
#include <iterator>

#include "text/internal/character_class.h"
#include "text/regex_grep.h"

namespace {

const Regex subscript_regex("~[^~]*~");
const Regex superscript_regex("\\^[^\\^]*\\^");
const Regex greek_regex("\\\\[[:alpha:]]");

struct GreekLookupEntry {
    char letter;
    TextItem::GreekSymbol symbol;
};

// Searched from the front, so that "f" is delta; phi cannot be reached, and d, j and v stand for
// nothing. Entries were written with these codes and must read back as they always did.
constexpr GreekLookupEntry greek_lookup[] = {
    {'a', TextItem::alpha},  {'b', TextItem::beta},    {'c', TextItem::chi},
    {'f', TextItem::delta},  {'e', TextItem::epsilon}, {'f', TextItem::phi},
    {'g', TextItem::gamma},  {'h', TextItem::eta},     {'i', TextItem::iota},
    {'k', TextItem::kappa},  {'l', TextItem::lambda},  {'m', TextItem::mu},
    {'n', TextItem::nu},     {'o', TextItem::omicron}, {'p', TextItem::pi},
    {'q', TextItem::theta},  {'r', TextItem::rho},     {'s', TextItem::sigma},
    {'t', TextItem::tau},    {'u', TextItem::upsilon}, {'w', TextItem::omega},
    {'x', TextItem::xi},     {'y', TextItem::psi},     {'z', TextItem::zeta},
    {'D', TextItem::cdelta}, {'L', TextItem::clambda},
};
static_assert(std::size(greek_lookup) == TextItem::clambda, "every letter has one row");

struct MatchesLetter {
    char letter;
    bool operator()(const GreekLookupEntry& entry) const { return entry.letter == letter; }
};

TextItem::GreekSymbol to_greek(char letter) {
    const auto* const end = std::end(greek_lookup);
    const auto* row = std::find_if(std::begin(greek_lookup), end, MatchesLetter{letter});
    if (row == end)
        row = std::find_if(std::begin(greek_lookup), end, MatchesLetter{to_lower(letter)});
    return row == end ? TextItem::no_symbol : row->symbol;
}

struct ProcessSubSuperscript {
    std::vector<StringSlice>& enclosed;
    std::vector<StringSlice>& invisible;

    void operator()(const StringSlice& match) const {
        enclosed.emplace_back(match.from() + 1, match.to() - 1);
        invisible.emplace_back(match.from(), match.from() + 1);
        invisible.emplace_back(match.to() - 1, match.to());
    }
};

struct ProcessGreek {
    const std::string& text;
    std::vector<GreekSlice>& greek;

    void operator()(const StringSlice& match) const {
        greek.emplace_back(match.from(), match.to(), to_greek(text[match.from() + 1]));
    }
};

}  // namespace

CifChemicalNameStyleFinder::~CifChemicalNameStyleFinder() = default;

void CifChemicalNameStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    out.insert(out.end(), subscripts_.begin(), subscripts_.end());
}

void CifChemicalNameStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    out.insert(out.end(), superscripts_.begin(), superscripts_.end());
}

void CifChemicalNameStyleFinder::invisible(std::vector<StringSlice>& out) const {
    out.insert(out.end(), invisible_.begin(), invisible_.end());
}

void CifChemicalNameStyleFinder::greek(std::vector<GreekSlice>& out) const {
    out.insert(out.end(), greek_.begin(), greek_.end());
}

void CifChemicalNameStyleFinder::calc_tag_positions() {
    greek_.clear();
    subscripts_.clear();
    superscripts_.clear();
    invisible_.clear();
    RegexResults match;
    regex_grep(subscript_regex, text(), match, ProcessSubSuperscript{subscripts_, invisible_});
    regex_grep(superscript_regex, text(), match, ProcessSubSuperscript{superscripts_, invisible_});
    regex_grep(greek_regex, text(), match, ProcessGreek{text(), greek_});
}

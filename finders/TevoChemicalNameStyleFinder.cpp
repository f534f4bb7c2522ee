#include "finders/TevoChemicalNameStyleFinder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "finders/internal/GreekNameScanner.h"
#include "text/Position.h"

namespace {

constexpr char down = '!';
constexpr char up = '$';

/// Appends the texts between `opener` and `closer`. Of the next two markers of different kinds the
/// first opens a span and the other closes it; where that span belongs to the other script, it is
/// passed over whole.
void find_shifts(std::string_view text, char opener, char closer, std::vector<StringSlice>& out) {
    std::size_t pos = 0;
    while (true) {
        const std::size_t opener_at = text.find(opener, pos);
        if (opener_at == std::string_view::npos) return;
        const std::size_t closer_at = text.find(closer, pos);
        if (closer_at == std::string_view::npos) return;
        if (opener_at < closer_at) {
            out.emplace_back(to_position(opener_at + 1), to_position(closer_at));
        }
        pos = std::max(opener_at, closer_at) + 1;
    }
}

/// One for all finders: made when the first of them looks for letters.
const GreekNameScanner& scanner() {
    static const GreekNameScanner names;
    return names;
}

bool is_one_of(char character, std::string_view set) { return set.find(character) != set.npos; }

/// Whether the letter's name is a tail behind that character; none where it begins the text.
bool is_tail(TextItem::GreekSymbol letter, std::string_view prior_char) {
    if (prior_char.empty()) return false;
    switch (letter) {
        case TextItem::pi:
            return is_one_of(prior_char[0], "AaEeIiOoUu");
        case TextItem::eta:
            return is_one_of(prior_char[0], "BbHhMmZz");
        case TextItem::delta:
        case TextItem::lambda:
            return prior_char[0] == 'c';
        default:
            return false;
    }
}

/// Whether the letter's name is a head before that character; none where it ends the text.
bool is_head(TextItem::GreekSymbol letter, std::string_view next_char) {
    if (next_char.empty() || is_one_of(next_char[0], "-,$()'*!HRS:")) return false;
    // A coordinating atom may follow kappa at once.
    return letter != TextItem::kappa || next_char[0] < 'A' || next_char[0] > 'Z';
}

}  // namespace

TevoChemicalNameStyleFinder::~TevoChemicalNameStyleFinder() = default;

void TevoChemicalNameStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    find_shifts(text(), down, up, out);
}

void TevoChemicalNameStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    find_shifts(text(), up, down, out);
}

void TevoChemicalNameStyleFinder::invisible(std::vector<StringSlice>& out) const {
    std::vector<StringSlice> scripts;
    subscripts(scripts);
    superscripts(scripts);
    for (const StringSlice& script : scripts) {
        out.emplace_back(script.from() - 1, script.from());
        out.emplace_back(script.to(), script.to() + 1);
    }
}

void TevoChemicalNameStyleFinder::greek(std::vector<GreekSlice>& out) const {
    const std::string_view name_text = text();
    const GreekNameScanner& names = scanner();
    const auto first = static_cast<std::ptrdiff_t>(out.size());
    // A name is not looked for inside its own last occurrence, whether that was a letter or not.
    std::array<unsigned int, TextItem::clambda> next_allowed;  // of those seen: most texts have few
    std::uint32_t seen = 0;
    names.scan(name_text, [&](unsigned int i, unsigned int pos) {
        if ((seen >> i & 1) != 0 && pos < next_allowed[i]) return;
        seen |= std::uint32_t{1} << i;
        const TextItem::GreekSymbol letter = names.symbol(i);
        const unsigned int end = pos + names.length(i);
        next_allowed[i] = end;
        if (is_tail(letter, name_text.substr(pos > 0 ? pos - 1 : 0, pos > 0 ? 1 : 0))) return;
        if (is_head(letter, name_text.substr(end, 1))) return;
        out.emplace_back(pos, end, letter);
    });
    std::sort(out.begin() + first, out.end(), [&](const GreekSlice& a, const GreekSlice& b) {
        const unsigned int a_name = names.index(a.symbol()), b_name = names.index(b.symbol());
        return a_name != b_name ? a_name < b_name : a.from() < b.from();
    });
}

bool TevoChemicalNameStyleFinder::greek_fragment(const std::string& name,
                                                 const std::string& prior_char) const {
    if (prior_char.size() > 1) throw std::runtime_error("illegal 'prior_char' length");
    return is_tail(scanner().symbol_of(name), prior_char);
}

bool TevoChemicalNameStyleFinder::word_fragment(const std::string& name,
                                                const std::string& /*prior_char*/,
                                                const std::string& next_char) const {
    if (next_char.size() > 1) throw std::runtime_error("illegal 'next_char' length");
    return is_head(scanner().symbol_of(name), next_char);
}

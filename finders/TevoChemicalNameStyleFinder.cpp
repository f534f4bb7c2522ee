#include "finders/TevoChemicalNameStyleFinder.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

#include "text/Position.h"

namespace {

constexpr char down = '!';
constexpr char up = '$';

using Names = TevoChemicalNameToTextItemGreek;

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

bool is_one_of(const std::string& character, std::string_view set) {
    return set.find(character) != std::string_view::npos;
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
    struct Hit {
        unsigned int name, from, to;
    };
    const std::string_view name_text = text();
    const std::vector<std::string>& names = names_.tevo_chemical_name_greek();
    std::vector<Hit> hits;
    // A name is not looked for inside its own last occurrence, whether that was a letter or not.
    std::array<unsigned int, TextItem::clambda> next_allowed{};
    for (std::size_t at = names_.next_candidate(name_text, 0); at < name_text.size();
         at = names_.next_candidate(name_text, at + 1)) {
        const unsigned int pos = to_position(at);
        const std::uint64_t characters = Names::characters_at(name_text, pos);
        const auto [first, last] = names_.names_beginning_with(name_text[pos]);
        for (unsigned int i = first; i < last; ++i) {
            if (!names_.begins(i, characters) || pos < next_allowed[i]) continue;
            const std::string& name = names[i];
            const unsigned int end = pos + length_of(name);
            next_allowed[i] = end;
            const std::string prior_char(name_text.substr(pos > 0 ? pos - 1 : 0, pos > 0 ? 1 : 0));
            const std::string next_char(name_text.substr(end, 1));
            if (greek_fragment(name, prior_char)) continue;
            if (word_fragment(name, prior_char, next_char)) continue;
            hits.push_back({i, pos, end});
        }
    }
    std::sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) {
        return a.name != b.name ? a.name < b.name : a.from < b.from;
    });
    out.reserve(out.size() + hits.size());
    for (const Hit& hit : hits) out.emplace_back(hit.from, hit.to, names_.symbol_of(hit.name));
}

bool TevoChemicalNameStyleFinder::greek_fragment(const std::string& name,
                                                 const std::string& prior_char) const {
    if (prior_char.empty()) return false;
    if (prior_char.size() > 1) throw std::runtime_error("illegal 'prior_char' length");
    if (name == Names::pi_) return is_one_of(prior_char, "AaEeIiOoUu");
    if (name == Names::eta_) return is_one_of(prior_char, "BbHhMmZz");
    if (name == Names::delta_ || name == Names::lambda_) return prior_char == "c";
    return false;
}

bool TevoChemicalNameStyleFinder::word_fragment(const std::string& name,
                                                const std::string& /*prior_char*/,
                                                const std::string& next_char) const {
    if (next_char.empty()) return false;
    if (next_char.size() > 1) throw std::runtime_error("illegal 'next_char' length");
    if (is_one_of(next_char, "-,$()'*!HRS:")) return false;
    // A coordinating atom may follow kappa at once.
    return name != Names::kappa_ || !is_one_of(next_char, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

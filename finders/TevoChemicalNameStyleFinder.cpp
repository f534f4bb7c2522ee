#include "finders/TevoChemicalNameStyleFinder.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "text/Position.h"

namespace {

constexpr char down = '!';
constexpr char up = '$';
constexpr char markers[] = {down, up, '\0'};

using Names = TevoChemicalNameToTextItemGreek;

/// Appends the texts between `opener` and `closer`. The spans between `closer` and `opener` belong
/// to the other script and are passed over whole.
void find_shifts(std::string_view text, char opener, char closer, std::vector<StringSlice>& out) {
    const std::size_t first_opener = text.find(opener);
    if (first_opener == std::string_view::npos) return;
    if (text.find(closer, first_opener + 1) == std::string_view::npos) return;
    std::size_t begin = text.find_first_of(markers);
    while (begin != std::string_view::npos) {
        const bool own = text[begin] == opener;
        const std::size_t end = text.find(own ? closer : opener, begin + 1);
        if (end == std::string_view::npos) return;
        if (own) out.emplace_back(to_position(begin + 1), to_position(end));
        begin = text.find_first_of(markers, end + 1);
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
    const std::string& name_text = text();
    const std::vector<std::string>& names = names_.tevo_chemical_name_greek();
    std::vector<Hit> hits;
    // A name is not looked for inside its own last occurrence, whether that was a letter or not.
    std::vector<unsigned int> next_allowed(names.size(), 0);
    const auto character_at = [&](unsigned int pos) {
        return pos < name_text.size() ? std::string(1, name_text[pos]) : std::string();
    };
    for (unsigned int pos = 0; pos < name_text.size(); ++pos) {
        const auto [first, last] = names_.names_beginning_with(name_text[pos]);
        for (unsigned int i = first; i < last; ++i) {
            const std::string& name = names[i];
            if (pos < next_allowed[i] || name_text.compare(pos, name.size(), name) != 0) continue;
            const unsigned int end = pos + length_of(name);
            next_allowed[i] = end;
            const std::string prior_char = pos > 0 ? character_at(pos - 1) : std::string();
            if (greek_fragment(name, prior_char)) continue;
            if (word_fragment(name, prior_char, character_at(end))) continue;
            hits.push_back({i, pos, end});
        }
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const Hit& a, const Hit& b) { return a.name < b.name; });
    for (const Hit& hit : hits) {
        out.emplace_back(hit.from, hit.to, names_.greek_symbol(names[hit.name]));
    }
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

// A term and a text through every search, and through normalisation.
#include <stdexcept>

#include "fuzz/Input.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinder.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NormalisedString.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"
#include "tests/search/slow_matches.h"
#include "text/Position.h"

namespace {

void check_slices(const std::vector<StringSlice>& slices, const std::string& text) {
    for (const StringSlice& slice : slices) {
        require(slice.to() <= length_of(text), "slices lie in the text", text);
    }
}

void check_search(TextSearch& search, const std::string& term, const std::string& text) {
    std::vector<StringSlice> slices, again;
    search.set_search_term(term);
    try {
        const bool matched = search.search(text, slices);
        require(search.search(text, again) == matched && slices == again, "a search keeps its mind",
                text);
    } catch (const std::range_error&) {
    }
    check_slices(slices, text);
}

void check_substrings(const std::string& a, const std::string& b, unsigned int min_length) {
    std::vector<StringSlice> in_a, in_b;
    CommonSubstringFinder().search(a, b, in_a, in_b, min_length);
    require(std::pair(in_a, in_b) == slow_matches(a, b, min_length),
            "the fast search equals the slow one", a + '\n' + b);
}

void check_normalised(const StringNormalisationPolicy& policy, const std::string& raw) {
    const NormalisedString normal(policy, raw);
    const std::string kept = normal.normalised();
    std::string expected;
    for (const char c : raw) {
        if (!policy.drops(c)) expected += policy.converted(c);
    }
    require(kept == expected, "normalisation keeps what its policy keeps", raw);
    for (unsigned int i = 0; i < length_of(kept); ++i) {
        const StringSlice back = normal.denormalise_slice(StringSlice(i, i + 1));
        require(back.length() == 1 && back.to() <= length_of(raw) &&
                    policy.converted(raw[back.from()]) == kept[i],
                "a kept character comes from its own place", raw);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const unsigned int min_length = 1 + input.byte() % 5;
    const unsigned int flags = input.byte();
    const std::string term = input.text();
    const std::string text = input.rest();
    const StringNormalisationPolicy policy(flags, "x");

    EntireTextComparison entire;
    MultipleLineTextComparison lines(make_handle<EntireTextComparison>());
    NumericComparison numbers(0.5);
    SurnameComparison surnames;
    CombinedPublicationComparisonSearch publication;
    CommonSubstringFinderAdapter substrings(policy, min_length, "");
    for (TextSearch* search :
         {static_cast<TextSearch*>(&entire), static_cast<TextSearch*>(&lines),
          static_cast<TextSearch*>(&numbers), static_cast<TextSearch*>(&surnames),
          static_cast<TextSearch*>(&publication), static_cast<TextSearch*>(&substrings)}) {
        check_search(*search, term, text);
    }
    if (term.size() * text.size() <= 10000) check_substrings(term, text, min_length);
    check_normalised(policy, text);
    return 0;
}

// Every search on real names, at four sizes of text and term; what they do with hostile texts; and
// matches laid over styles.
#include <benchmark/benchmark.h>

#include "bench/texts.h"
#include "finders/TextSearchStyleFinder.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinder.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"

namespace {

constexpr unsigned int min_match_length = 3;

/// `length` characters of every second piece from `first` on, then of those between.
std::string joined(const std::vector<std::string>& pieces, std::size_t first,
                   const std::string& separator, std::size_t length) {
    std::string text;
    std::size_t index = first;
    while (text.size() < length) {
        text += pieces[index] + separator;
        index += 2;
        if (index >= pieces.size()) index = 1 - index % 2;
    }
    text.resize(length);
    return text;
}

std::string names(const benchmark::State& state, std::size_t first, const std::string& separator) {
    static const std::vector<std::string> pieces = lines_of("names.txt");
    return joined(pieces, first, separator, static_cast<std::size_t>(state.range(0)));
}

std::string authors(const benchmark::State& state, std::size_t first) {
    static const std::vector<std::string> pieces = lines_of("authors.txt");
    return joined(pieces, first, ", ", static_cast<std::size_t>(state.range(0)));
}

std::string reference(const benchmark::State& state, std::size_t first) {
    return "<j>" + names(state, first, " ") + "</j><y>1973</y><v>29</v><p>1055</p>";
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    for (const int size : {60, 1000, 10000, 100000}) benchmark->Arg(size);
}

void run_finder(benchmark::State& state, const std::string& a, const std::string& b) {
    std::vector<StringSlice> in_a, in_b;
    for (auto _ : state) CommonSubstringFinder().search(a, b, in_a, in_b, min_match_length);
    state.counters["matches"] = static_cast<double>(in_a.size());
}

void run_search(benchmark::State& state, TextSearch& search, const std::string& term,
                const std::string& text) {
    search.set_search_term(term);
    std::vector<StringSlice> slices;
    for (auto _ : state) {
        slices.clear();
        benchmark::DoNotOptimize(search.search(text, slices));
    }
    state.counters["matches"] = static_cast<double>(slices.size());
}

void common_substrings(benchmark::State& state) {
    run_finder(state, names(state, 1, ", "), names(state, 0, ", "));
}
BENCHMARK(common_substrings)->Apply(sizes);

void normalised_substrings(benchmark::State& state) {
    CommonSubstringFinderAdapter search(StringNormalisationPolicy(0x0C, ""), min_match_length, "");
    run_search(state, search, names(state, 1, ", "), names(state, 0, ", "));
}
BENCHMARK(normalised_substrings)->Apply(sizes);

void exact(benchmark::State& state) {
    EntireTextComparison search;
    run_search(state, search, names(state, 0, ", "), names(state, 0, ", "));
}
BENCHMARK(exact)->Apply(sizes);

void lines(benchmark::State& state) {
    MultipleLineTextComparison search(make_handle<EntireTextComparison>());
    run_search(state, search, names(state, 1, "\n"), names(state, 0, "\n"));
}
BENCHMARK(lines)->Apply(sizes);

void numbers(benchmark::State& state) {
    NumericComparison search(1);
    run_search(state, search, names(state, 1, ", "), names(state, 0, ", "));
}
BENCHMARK(numbers)->Apply(sizes);

void surnames(benchmark::State& state) {
    SurnameComparison search;
    run_search(state, search, authors(state, 1), authors(state, 0));
}
BENCHMARK(surnames)->Apply(sizes);

void publication(benchmark::State& state) {
    CombinedPublicationComparisonSearch search;
    run_search(state, search, reference(state, 0), reference(state, 0));
}
BENCHMARK(publication)->Apply(sizes);

std::string units_of(const benchmark::State& state, const std::string& unit) {
    return repeated(unit, static_cast<std::size_t>(state.range(0)));
}

// One letter: a single match and all else covered by it.
void hostile_substrings_one_letter(benchmark::State& state) {
    run_finder(state, units_of(state, "a"), units_of(state, "a"));
}
BENCHMARK(hostile_substrings_one_letter)->Arg(10000)->Arg(20000);

// Runs of the term that occur in every unit of the text: as many matches as units times units.
void hostile_substrings_many_matches(benchmark::State& state) {
    run_finder(state, units_of(state, "abc1"), units_of(state, "abc2"));
}
BENCHMARK(hostile_substrings_many_matches)->Arg(2000)->Arg(4000);

void hostile_numbers(benchmark::State& state) {
    NumericComparison search(1);
    run_search(state, search, "1", units_of(state, "9"));
}
BENCHMARK(hostile_numbers)->Arg(100000)->Arg(200000);

void hostile_equal_surnames(benchmark::State& state) {
    SurnameComparison search;
    run_search(state, search, units_of(state, "A.Smith,"), units_of(state, "B.Smith,"));
}
BENCHMARK(hostile_equal_surnames)->Arg(100000)->Arg(200000);

void hostile_equal_lines(benchmark::State& state) {
    MultipleLineTextComparison search(make_handle<EntireTextComparison>());
    run_search(state, search, units_of(state, "a\n"), units_of(state, "a\n"));
}
BENCHMARK(hostile_equal_lines)->Arg(100000)->Arg(200000);

/// A list of so many authors against another, of whom a half are the same.
void many_authors(benchmark::State& state) {
    std::string term, text;
    for (int i = 0; i < state.range(0); ++i) {
        term += "A.Smith" + std::to_string(i) + ", ";
        text += "A.Smith" + std::to_string(2 * i) + ", ";
    }
    SurnameComparison search;
    run_search(state, search, term, text);
}
BENCHMARK(many_authors)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond);

/// A slice of ten characters every twelve, from `first` on.
std::vector<StringSlice> row_of_slices(const benchmark::State& state, unsigned int first) {
    std::vector<StringSlice> slices;
    for (unsigned int i = 0; i < static_cast<unsigned int>(state.range(0)); ++i) {
        slices.emplace_back(first + 12 * i, first + 12 * i + 10);
    }
    return slices;
}

struct FixedSearch : TextSearch {
    bool search(const std::string& /*text*/, std::vector<StringSlice>& slices) const override {
        slices = matches;
        return false;
    }
    void set_search_term(const std::string& /*term*/) override {}

    std::vector<StringSlice> matches;
};

struct FixedFinder : InputTextStyleFinder {
    void bold(std::vector<StringSlice>& out) const override { out = styles; }

    std::vector<StringSlice> styles;
};

// Each match crosses a style at either end.
void matches_on_styles(benchmark::State& state) {
    const auto search = make_handle<FixedSearch>();
    search->matches = row_of_slices(state, 5);
    const auto finder = make_handle<FixedFinder>();
    finder->styles = row_of_slices(state, 0);
    TextSearchStyleFinder highlighted(search, finder);
    for (auto _ : state) highlighted.set_text("");
}
BENCHMARK(matches_on_styles)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);

}  // namespace

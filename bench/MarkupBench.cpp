// The road of a text, from finder through item to generator, for texts as large as they come. The
// time of twice its size stands below each.
#include <benchmark/benchmark.h>

#include "bench/texts.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "markup/HtmlRichTextGenerator.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

void large_text(benchmark::State& state, const THandle<InputTextStyleFinder>& finder,
                const std::string& unit) {
    const std::string text = repeated(unit, static_cast<std::size_t>(state.range(0)));
    HtmlRichTextGenerator generator;
    TextItem item(finder);
    for (auto _ : state) {
        item.set_text(text);
        benchmark::DoNotOptimize(item.mark_up_text(generator));
    }
}
// 64 characters with 3 styles make 50,000 of them in a MiB.
BENCHMARK_CAPTURE(large_text, tevo_names, make_handle<TevoChemicalNameStyleFinder>(),
                  "tetrakis(pyridine-3-carboxylato)-eicosane-1,20-diol-copper!12$--")
    ->Arg(1 << 20)
    ->Arg(1 << 21)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(large_text, cif_names, make_handle<CifChemicalNameStyleFinder>(),
                  "tetrakis(pyridine-3-carboxylato)-eicosane-1,20-diol-copper~12~--")
    ->Arg(1 << 20)
    ->Arg(1 << 21)
    ->Unit(benchmark::kMillisecond);

/// Runs of one look each, of two or three characters.
void atomise_dense(benchmark::State& state) {
    const TextItem item(make_handle<CifChemicalNameStyleFinder>(),
                        repeated("iron~2~oxo~3~--", static_cast<std::size_t>(state.range(0))));
    std::size_t runs = 0;
    for (auto _ : state) {
        const std::vector<TextAtom> atoms = item.atomize();
        runs = atoms.size();
        benchmark::DoNotOptimize(atoms.data());
    }
    state.counters["runs"] = static_cast<double>(runs);
    state.counters["a_run"] = benchmark::Counter(
        static_cast<double>(runs),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(atomise_dense)->Arg(10000)->Arg(20000);

/// A text with as many styles as characters / 21, by one creator call each, in a shape.
template <class Shape>
void large_item(benchmark::State& state, Shape slice_of) {
    const auto length = static_cast<unsigned int>(state.range(0));
    const unsigned int styles = length / 21;
    const std::string text(length, 'x');
    HtmlRichTextGenerator generator;
    for (auto _ : state) {
        TextItem item(make_handle<InputTextStyleFinder>(), text);
        for (unsigned int i = 0; i < styles; ++i) {
            const StringSlice slice = slice_of(i, styles, length);
            item.create_bold(slice.from(), slice.to());
        }
        benchmark::DoNotOptimize(item.mark_up_text(generator));
    }
}

StringSlice nested_outwards(unsigned int i, unsigned int styles, unsigned int length) {
    return {styles - i, length - styles + i};
}
StringSlice one_end(unsigned int i, unsigned int /*styles*/, unsigned int length) {
    return {i, length};
}
StringSlice backwards(unsigned int i, unsigned int styles, unsigned int /*length*/) {
    return {21 * (styles - i - 1), 21 * (styles - i)};
}
BENCHMARK_CAPTURE(large_item, nested_outwards, nested_outwards)
    ->Arg(1 << 20)
    ->Arg(1 << 21)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(large_item, one_end, one_end)
    ->Arg(1 << 20)
    ->Arg(1 << 21)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(large_item, backwards, backwards)
    ->Arg(1 << 20)
    ->Arg(1 << 21)
    ->Unit(benchmark::kMillisecond);

}  // namespace

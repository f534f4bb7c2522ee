// Usual fields, 2,000 texts a round: what it takes to find their styles, to build, write, search
// and cut them, in nanoseconds and allocations a text, and as a multiple of the limit: one
// allocation, copy and deallocation of each text that is written.
#include <benchmark/benchmark.h>

#include "bench/texts.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/UnicodeTextStyleFinder.h"
#include "markup/CifTextRichTextGenerator.h"
#include "markup/RichTextTarget.h"
#include "markup/UnicodeRichTextGenerator.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "tests/Allocations.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

constexpr std::size_t round_size = 2000;

/// Fields of one kind.
struct Fields {
    std::string name;
    std::vector<std::string> texts;
    THandle<InputTextStyleFinder> (*make_finder)();
    THandle<TextSearch> (*make_search)();
    std::string term;
};

template <class T>
THandle<InputTextStyleFinder> finder() {
    return make_handle<T>();
}

template <class T>
THandle<TextSearch> search() {
    return make_handle<T>();
}

THandle<TextSearch> substring_search() {
    return make_handle<CommonSubstringFinderAdapter>(StringNormalisationPolicy(0x0C, ""), 3U, "");
}

std::vector<std::string> round_of(const std::vector<std::string>& lines) {
    std::vector<std::string> texts;
    while (texts.size() < round_size) texts.push_back(lines[texts.size() % lines.size()]);
    return texts;
}

/// Measures `process(text)` over the fields, whose output the generator gives.
template <class Process>
void measure(benchmark::State& state, const Fields& fields, RichTextGenerator& generator,
             Process process) {
    std::vector<std::string> output;
    TextItem item(fields.make_finder());
    for (const std::string& text : fields.texts) {
        item.set_text(text);
        output.push_back(item.mark_up_text(generator));
    }
    for (std::size_t i = 0; i < round_size; ++i) process(i);
    const unsigned long before = allocations();
    for (std::size_t i = 0; i < round_size; ++i) process(i);
    const auto made = static_cast<double>(allocations() - before);
    const PairedTime time = timed_beside_limit(state, output, [&] {
        for (std::size_t i = 0; i < round_size; ++i) process(i);
    });
    state.counters["ns_a_text"] = time.seconds / round_size * 1e9;
    state.counters["limits"] = time.limits;
    state.counters["allocs"] = made / round_size;
}

void find(benchmark::State& state, const Fields& fields, RichTextGenerator& generator) {
    const auto text_finder = fields.make_finder();
    std::vector<StringSlice> slices;
    std::vector<GreekSlice> letters;
    measure(state, fields, generator, [&](std::size_t i) {
        slices.clear();
        letters.clear();
        text_finder->set_text(fields.texts[i]);
        text_finder->subscripts(slices);
        text_finder->superscripts(slices);
        text_finder->invisible(slices);
        text_finder->bold(slices);
        text_finder->italic(slices);
        text_finder->greek(letters);
        benchmark::DoNotOptimize(slices.data());
    });
}

void build(benchmark::State& state, const Fields& fields, RichTextGenerator& generator) {
    TextItem item(fields.make_finder());
    measure(state, fields, generator, [&](std::size_t i) { item.set_text(fields.texts[i]); });
}

std::vector<std::unique_ptr<TextItem>> items_of(const Fields& fields) {
    std::vector<std::unique_ptr<TextItem>> items;
    for (const std::string& text : fields.texts) {
        items.push_back(std::make_unique<TextItem>(fields.make_finder(), text));
    }
    return items;
}

void write(benchmark::State& state, const Fields& fields, RichTextGenerator& generator) {
    const auto items = items_of(fields);
    measure(state, fields, generator,
            [&](std::size_t i) { benchmark::DoNotOptimize(items[i]->mark_up_text(generator)); });
}

void build_and_write(benchmark::State& state, const Fields& fields, RichTextGenerator& generator) {
    TextItem item(fields.make_finder());
    measure(state, fields, generator, [&](std::size_t i) {
        item.set_text(fields.texts[i]);
        benchmark::DoNotOptimize(item.mark_up_text(generator));
    });
}

void atomise(benchmark::State& state, const Fields& fields, RichTextGenerator& generator) {
    const auto items = items_of(fields);
    measure(state, fields, generator,
            [&](std::size_t i) { benchmark::DoNotOptimize(items[i]->atomize()); });
}

void search_each(benchmark::State& state, const Fields& fields, RichTextGenerator& generator) {
    const THandle<TextSearch> text_search = fields.make_search();
    text_search->set_search_term(fields.term);
    std::vector<StringSlice> slices;
    measure(state, fields, generator, [&](std::size_t i) {
        slices.clear();
        benchmark::DoNotOptimize(text_search->search(fields.texts[i], slices));
    });
}

constexpr struct {
    const char* name;
    void (*run)(benchmark::State& state, const Fields& fields, RichTextGenerator& generator);
} operations[] = {{"find", find},           {"build", build},     {"write", write},
                  {"all", build_and_write}, {"atomise", atomise}, {"search", search_each}};

const bool registered = [] {
    static const Fields kinds[] = {
        // 66 characters with 3 styles: a script and its two marks.
        {"usual_name",
         std::vector<std::string>(round_size,
                                  "tetrakis(pyridine-3-carboxylato)-eicosane-1,20-"
                                  "diol-copper!12$--ab"),
         finder<TevoChemicalNameStyleFinder>, substring_search, "D-glucopyranoside"},
        {"tevo_names", round_of(lines_of("tevo_names.txt")), finder<TevoChemicalNameStyleFinder>,
         substring_search, "D-glucopyranoside"},
        {"cif_names", round_of(lines_of("names.txt")), finder<CifChemicalNameStyleFinder>,
         substring_search, "D-glucopyranoside"},
        {"cif_texts", round_of(names_by(make_handle<CifTextRichTextGenerator>())),
         finder<CifTextStyleFinder>, substring_search, "D-glucopyranoside"},
        {"pasted_texts", round_of(names_by(make_handle<UnicodeRichTextGenerator>())),
         finder<UnicodeTextStyleFinder>, substring_search, "D-glucopyranoside"},
        {"formulae", round_of(lines_of("formulae.txt")), finder<TevoChemicalFormulaStyleFinder>,
         search<EntireTextComparison>, "C6 H12 O6"},
        {"references", round_of(lines_of("references.txt")), finder<TevoPublicationStyleFinder>,
         search<CombinedPublicationComparisonSearch>,
         "<j>Acta Crystallographica Section E</j><v>60</v><y>2004</y><p>124</p>"},
    };
    for (const Fields& fields : kinds) {
        for (const auto& operation : operations) {
            for (const RichTextTarget& target : rich_text_targets()) {
                // Only what writes depends on the target.
                const bool writes = operation.run == write;
                if (!writes && std::string_view(target.name) != "html") continue;
                std::string name = "field/" + fields.name + '/' + operation.name;
                if (writes) name += std::string("/") + target.name;
                benchmark::RegisterBenchmark(
                    name.c_str(), [&fields, &operation, &target](benchmark::State& state) {
                        const auto generator = target.make_generator();
                        operation.run(state, fields, *generator);
                    });
            }
        }
    }
    return true;
}();

}  // namespace

// The same content through other libraries, and the numbers of texts found by others' means.
#include <benchmark/benchmark.h>
#ifdef BENCH_CMARK
#include <cmark.h>
#endif
#ifdef BENCH_QT
#include <QGuiApplication>
#include <QTextDocument>
#endif
#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <charconv>
#include <cstdlib>

#include "bench/texts.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "markup/Html5RichTextGenerator.h"
#include "markup/HtmlRichTextGenerator.h"
#include "markup/MarkdownRichTextGenerator.h"
#include "search/NumericComparison.h"
#include "text/TextItem.h"

namespace {

/// A usual name, and a megabyte of them.
std::string name_of(const benchmark::State& state) {
    return repeated("tetrakis(pyridine-3-carboxylato)-eicosane-1,20-diol-copper!12$--ab",
                    static_cast<std::size_t>(state.range(0)));
}

/// Measures `process`, whose content is written in HTML as `output`.
template <class Process>
void measure(benchmark::State& state, const std::string& output, Process process) {
    const std::vector<std::string> copies(output.size() < 1000 ? 1000 : 1, output);
    const PairedTime time = timed_beside_limit(state, copies, [&] {
        for (std::size_t i = 0; i < copies.size(); ++i) process();
    });
    state.counters["ns_a_text"] = time.seconds / static_cast<double>(copies.size()) * 1e9;
    state.counters["limits"] = time.limits;
}

template <class Generator>
std::string written(const std::string& name) {
    Generator generator;
    return TextItem(make_handle<TevoChemicalNameStyleFinder>(), name).mark_up_text(generator);
}

void peer_ours(benchmark::State& state) {
    const std::string name = name_of(state);
    TextItem item(make_handle<TevoChemicalNameStyleFinder>());
    HtmlRichTextGenerator generator;
    measure(state, written<HtmlRichTextGenerator>(name), [&] {
        item.set_text(name);
        benchmark::DoNotOptimize(item.mark_up_text(generator));
    });
}
BENCHMARK(peer_ours)->Arg(66)->Arg(1 << 20);

#ifdef BENCH_CMARK
void peer_cmark(benchmark::State& state) {
    const std::string markdown = written<MarkdownRichTextGenerator>(name_of(state));
    measure(state, written<HtmlRichTextGenerator>(name_of(state)), [&] {
        std::free(cmark_markdown_to_html(markdown.data(), markdown.size(), CMARK_OPT_UNSAFE));
    });
}
BENCHMARK(peer_cmark)->Arg(66)->Arg(1 << 20);
#endif

#ifdef BENCH_QT
void peer_qt(benchmark::State& state) {
    static int argc = 0;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static const QGuiApplication application(argc, nullptr);
    const QString html = QString::fromStdString(written<Html5RichTextGenerator>(name_of(state)));
    QTextDocument document;
    measure(state, written<HtmlRichTextGenerator>(name_of(state)), [&] {
        document.setHtml(html);
        benchmark::DoNotOptimize(document.toHtml());
    });
}
BENCHMARK(peer_qt)->Arg(66)->Arg(1 << 20);
#endif

std::string cell_text(const benchmark::State& state) {
    return repeated("a 3.9732(5) b 3.9732(5) c 15.028(3) ",
                    static_cast<std::size_t>(state.range(0)));
}

void peer_numbers_ours(benchmark::State& state) {
    const std::string text = cell_text(state);
    NumericComparison search(0);
    search.set_search_term(text);
    std::vector<StringSlice> slices;
    for (auto _ : state) {
        slices.clear();
        benchmark::DoNotOptimize(search.search(text, slices));
    }
}
BENCHMARK(peer_numbers_ours)->Arg(36)->Arg(100000);

struct Number {
    std::size_t from, to;
    double value;
};

/// As ours, the search looks for the numbers of both texts and compares them.
template <class FindNumbers>
void compare_numbers(benchmark::State& state, FindNumbers find_numbers) {
    const std::string text = cell_text(state);
    std::vector<StringSlice> slices;
    for (auto _ : state) {
        slices.clear();
        const std::vector<Number> a = find_numbers(text);
        const std::vector<Number> b = find_numbers(text);
        for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
            if (a[i].value != b[i].value) continue;
            slices.emplace_back(static_cast<unsigned int>(a[i].from),
                                static_cast<unsigned int>(a[i].to));
        }
        benchmark::DoNotOptimize(slices.data());
    }
}

double value_of(const std::string& text, std::size_t from, std::size_t to) {
    double value = 0;
    std::from_chars(text.data() + from + (text[from] == '+' ? 1 : 0), text.data() + to, value);
    return value;
}

void peer_numbers_by_hand(benchmark::State& state) {
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    compare_numbers(state, [&](const std::string& text) {
        std::vector<Number> numbers;
        for (std::size_t i = 0; i < text.size();) {
            const bool begins = is_digit(text[i]) || (text[i] == '.' && is_digit(text[i + 1]));
            if (!begins) {
                ++i;
                continue;
            }
            const bool has_sign = i > 0 && (text[i - 1] == '+' || text[i - 1] == '-');
            const bool negative = has_sign && text[i - 1] == '-';
            double value = 0;
            const auto end = std::from_chars(text.data() + i, text.data() + text.size(), value,
                                             std::chars_format::fixed);
            const auto to = static_cast<std::size_t>(end.ptr - text.data());
            numbers.push_back({i - (has_sign ? 1 : 0), to, negative ? -value : value});
            i = to;
        }
        return numbers;
    });
}
BENCHMARK(peer_numbers_by_hand)->Arg(36)->Arg(100000);

void peer_numbers_pcre2(benchmark::State& state) {
    const std::string pattern = "[+-]?(\\d*\\.\\d+|\\d+\\.?)";
    int error = 0;
    PCRE2_SIZE offset = 0;
    pcre2_code* const code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()),
                                           pattern.size(), 0, &error, &offset, nullptr);
    pcre2_jit_compile(code, PCRE2_JIT_COMPLETE);
    pcre2_match_data* const match = pcre2_match_data_create_from_pattern(code, nullptr);
    const PCRE2_SIZE* const ends = pcre2_get_ovector_pointer(match);
    compare_numbers(state, [&](const std::string& text) {
        std::vector<Number> numbers;
        std::size_t at = 0;
        while (pcre2_jit_match(code, reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), at, 0,
                               match, nullptr) > 0) {
            numbers.push_back({ends[0], ends[1], value_of(text, ends[0], ends[1])});
            at = ends[1];
        }
        return numbers;
    });
    pcre2_match_data_free(match);
    pcre2_code_free(code);
}
BENCHMARK(peer_numbers_pcre2)->Arg(36)->Arg(100000);

}  // namespace

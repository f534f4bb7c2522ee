// Entries shown, against their files only read by the grammar that most programs for CIF files are
// built on; and texts of CIF files, from their codes to Unicode and back. In time of the processor,
// of processes that take turns.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "bench/processes.h"
#include "bench/texts.h"
#include "markup/CifTextRichTextGenerator.h"
#include "markup/UnicodeRichTextGenerator.h"

namespace {

/// Of those who have files of their own; those of the tests are smaller than most.
std::string cif_folder() {
    const char* const own = std::getenv("LMRTEXT_BENCH_CIF_FOLDER");
    return own ? own : CIF_FOLDER;
}

/// "of_reading" says how often the time of reading is that of showing, in the median.
void show(benchmark::State& state, const std::string& view, const std::string& target) {
    std::vector<std::string> reading{READ_FILES};
    std::vector<std::string> showing{PROGRAM, "show", "--view", view, "--to", target};
    constexpr unsigned int entries = 2000;
    append_files(reading, cif_folder(), entries);
    append_files(showing, cif_folder(), entries);
    std::vector<double> times, ratios;
    for (auto _ : state) {
        times.push_back(run_program(showing).seconds);
        ratios.push_back(times.back() / run_program(reading).seconds);
    }
    state.counters["of_reading"] = median(ratios);
    state.counters["us_an_entry"] = median(times) / entries * 1e6;
}
BENCHMARK_CAPTURE(show, html5, "default", "html5")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(show, tevo, "default", "tevo")->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(show, json, "internal", "json")->Iterations(15)->Unit(benchmark::kMillisecond);

void convert(benchmark::State& state, const std::string& from, const std::string& to,
             const std::vector<std::string>& texts) {
    const LinesFile file(texts, 500);
    double seconds = 0;
    for (auto _ : state) {
        seconds +=
            run_program({PROGRAM, "convert", "--from", from, "--to", to, file.path()}).seconds;
    }
    state.counters["MB/s"] = file.megabytes() * static_cast<double>(state.iterations()) / seconds;
}
BENCHMARK_CAPTURE(convert, codes_to_unicode, "cif-text", "unicode",
                  names_by(make_handle<CifTextRichTextGenerator>()))
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, unicode_to_codes, "unicode", "cif-text",
                  names_by(make_handle<UnicodeRichTextGenerator>()))
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

}  // namespace

#include "bench/texts.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <new>
#include <stdexcept>

#include "finders/TevoChemicalNameStyleFinder.h"
#include "text/TextItem.h"

namespace {

double seconds_of(const std::function<void()>& process) {
    const auto begin = std::chrono::steady_clock::now();
    process();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void copy_each(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        void* const copy = std::malloc(text.size());
        if (!copy) throw std::bad_alloc();
        std::memcpy(copy, text.data(), text.size());
        benchmark::DoNotOptimize(copy);
        benchmark::ClobberMemory();
        std::free(copy);
    }
}

}  // namespace

std::vector<std::string> lines_of(const std::string& file) {
    std::ifstream stream(DATA_FOLDER "/" + file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    if (lines.empty()) throw std::runtime_error("no texts in " + file);
    return lines;
}

std::vector<std::string> names_by(const THandle<RichTextGenerator>& generator) {
    std::vector<std::string> names = lines_of("tevo_names.txt");
    TextItem item(make_handle<TevoChemicalNameStyleFinder>());
    for (std::string& name : names) {
        item.set_text(name);
        name = item.mark_up_text(*generator);
    }
    return names;
}

double median(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

PairedTime timed_beside_limit(benchmark::State& state, const std::vector<std::string>& texts,
                              const std::function<void()>& process) {
    std::vector<double> times, limits;
    for (auto _ : state) {
        times.push_back(seconds_of(process));
        state.PauseTiming();
        copy_each(texts);  // brings them back into the caches
        limits.push_back(seconds_of([&] { copy_each(texts); }));
        state.ResumeTiming();
    }
    const double seconds = median(times);
    return {seconds, seconds / median(limits)};
}

std::string repeated(const std::string& unit, std::size_t length) {
    std::string text;
    while (text.size() < length) text += unit;
    return text;
}

#include "bench/texts.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include "finders/TevoChemicalNameStyleFinder.h"
#include "text/TextItem.h"

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

double limit_of(const std::vector<std::string>& texts) {
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    const auto seconds = [&] {
        return std::chrono::duration<double>(Clock::now() - begin).count();
    };
    int rounds = 0;
    do {
        for (const std::string& text : texts) {
            void* const copy = std::malloc(text.size());
            if (!copy) throw std::bad_alloc();
            std::memcpy(copy, text.data(), text.size());
            benchmark::DoNotOptimize(copy);
            benchmark::ClobberMemory();
            std::free(copy);
        }
        ++rounds;
    } while (seconds() < 0.05);
    return seconds() / rounds;
}

std::string repeated(const std::string& unit, std::size_t length) {
    std::string text;
    while (text.size() < length) text += unit;
    return text;
}

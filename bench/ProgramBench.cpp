// The program as a user runs it: entries of CIF files read, styled and written, from one to many,
// and 100 MB of names converted.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bench/texts.h"

namespace {

/// Runs the program with its output thrown away; returns its peak memory in MB.
double run_program(std::vector<std::string> arguments) {
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (std::freopen("/dev/null", "w", stdout)) execv(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        throw std::runtime_error("the program failed");
    }
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void show(benchmark::State& state, const std::string& target) {
    std::vector<std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(CIF_FOLDER)) {
        if (file.path().extension() == ".cif") files.push_back(file.path());
    }
    std::vector<std::string> arguments{PROGRAM, "show", "--view", "internal", "--to", target};
    const auto entries = static_cast<std::size_t>(state.range(0));
    for (std::size_t i = 0; i < entries; ++i) arguments.push_back(files.at(i % files.size()));
    double memory = 0;
    for (auto _ : state) memory = run_program(arguments);
    state.counters["MB"] = memory;
    state.counters["entries"] = benchmark::Counter(static_cast<double>(entries),
                                                   benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_CAPTURE(show, html5, "html5")
    ->Arg(1)
    ->Arg(1000)
    ->Arg(10000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(show, json, "json")
    ->Arg(1)
    ->Arg(1000)
    ->Arg(10000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

/// A file with so many bytes of names, for as long as this lives.
class NamesFile {
public:
    NamesFile(const std::string& source, std::size_t size) {
        std::string names;
        for (const std::string& name : lines_of(source)) names += name + '\n';
        // Piece by piece: what this process holds counts as memory of the program that it starts.
        std::ofstream file(path_, std::ios::binary);
        for (std::size_t written = 0; written < size; written += names.size()) file << names;
    }
    NamesFile(const NamesFile&) = delete;
    NamesFile& operator=(const NamesFile&) = delete;
    ~NamesFile() { std::filesystem::remove(path_); }

    std::string path() const { return path_; }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("lmrtext_bench_" + std::to_string(getpid()));
};

void convert(benchmark::State& state, const std::string& from, const std::string& source) {
    const NamesFile names(source, 100'000'000);
    double memory = 0;
    for (auto _ : state) {
        memory = run_program({PROGRAM, "convert", "--from", from, "--to", "html", "--jobs",
                              std::to_string(state.range(0)), names.path()});
    }
    state.counters["MB"] = memory;
    state.counters["MB/s"] =
        benchmark::Counter(static_cast<double>(std::filesystem::file_size(names.path())) / 1e6,
                           benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK_CAPTURE(convert, tevo_names, "tevo-name", "tevo_names.txt")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, names_as_tevo, "tevo-name", "names.txt")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, cif_names, "cif-name", "names.txt")
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace

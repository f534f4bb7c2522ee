#include "bench/processes.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace {

double seconds_of(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

ProcessCosts run_program(std::vector<std::string> arguments) {
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const bool is_quiet =
            std::freopen("/dev/null", "w", stdout) && std::freopen("/dev/null", "w", stderr);
        if (is_quiet) execv(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        throw std::runtime_error("the program failed");
    }
    return {seconds_of(usage.ru_utime) + seconds_of(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) / 1024};
}

void append_files(std::vector<std::string>& arguments, const std::string& folder,
                  std::size_t count) {
    std::vector<std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        if (file.path().extension() == ".cif") files.push_back(file.path());
    }
    std::sort(files.begin(), files.end());
    for (std::size_t i = 0; i < count; ++i) arguments.push_back(files.at(i % files.size()));
}

LinesFile::LinesFile(const std::vector<std::string>& lines, std::size_t size)
    : path_(std::filesystem::temp_directory_path() /
            ("lmrtext_bench_" + std::to_string(getpid()))) {
    std::string once;
    for (const std::string& line : lines) once += line + '\n';
    // Piece by piece: what this process holds counts as memory of the program that it starts.
    std::ofstream file(path_, std::ios::binary);
    for (std::size_t written = 0; written < size; written += once.size()) file << once;
}

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

ProcessCosts run_program(std::vector<std::string> arguments, int worst_status) {
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
    const bool has_ended = child > 0 && wait4(child, &status, 0, &usage) == child;
    if (!has_ended || !WIFEXITED(status) || WEXITSTATUS(status) > worst_status) {
        std::string command;
        for (const std::string& argument : arguments) command += ' ' + argument;
        command.resize(std::min<std::size_t>(command.size(), 200));
        throw std::runtime_error("failed:" + command);
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

LinesFile::LinesFile(const std::vector<std::string>& lines, std::size_t times) {
    static unsigned int number = 0;
    path_ = std::filesystem::temp_directory_path();
    path_ /= "lmrtext_bench_" + std::to_string(getpid()) + '_' + std::to_string(++number);
    std::string once;
    for (const std::string& line : lines) once += line + '\n';
    // Piece by piece: what this process holds counts as memory of the program that it starts.
    std::ofstream file(path_, std::ios::binary);
    while (times-- > 0) file << once;
}

double LinesFile::megabytes() const {
    return static_cast<double>(std::filesystem::file_size(path_)) / 1e6;
}

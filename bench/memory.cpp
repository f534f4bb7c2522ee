// Runs the program for each of its uses at one, two and four times a size, and tells its peak
// memory in MB: memory PROGRAM DATA_FOLDER. Fails where more is held than is promised.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/processes.h"

namespace fs = std::filesystem;

namespace {

using Arguments = std::vector<std::string>;

std::string content_of(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string replaced(std::string text, const std::string& old, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += by.size()) {
        text.replace(at, old.size(), by);
    }
    return text;
}

/// The files that it is run on, for as long as this lives. Little of them is held at a time: what
/// this process holds counts as memory of the program that it starts.
class Files {
public:
    Files(const fs::path& data) : data_(data) {
        for (const unsigned int size : {1, 2, 4}) {
            write_texts(size);
            for (const bool is_left : {true, false}) write_entries(size, is_left);
        }
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    ~Files() { fs::remove_all(folder_); }

    /// What has that name and that size.
    std::string of(const std::string& name, unsigned int size) const {
        return (folder_ / name).string() + std::to_string(size);
    }

private:
    void write_texts(unsigned int size) const {
        constexpr std::size_t bytes = 16 << 20, bytes_of_line = bytes / 4;
        const std::string names = content_of(data_ / "names.tsv");
        std::ofstream lines(of("lines", size), std::ios::binary);
        std::ofstream line(of("line", size), std::ios::binary);
        const std::string in_one_line = replaced(names, "\n", " ");
        for (std::size_t done = 0; done < size * bytes; done += names.size()) {
            lines << names;
            if (done < size * bytes_of_line) line << in_one_line;
        }
    }

    /// A folder of files, and one file, of entries with numbers of their own; those of the right
    /// side differ in a field, those of the other side in all that entries are paired by.
    void write_entries(unsigned int size, bool is_left) const {
        constexpr unsigned int files = 150;
        const std::string text = content_of(data_ / "2204347.cif");
        const std::string side = is_left ? "left" : "right";
        fs::create_directories(of(side, size));
        fs::create_directories(of("other", size));
        std::ofstream all(of(side, size) + ".cif", std::ios::binary);
        for (unsigned int i = 0; i < files * size; ++i) {
            std::string own = replaced(text, "2204347", std::to_string(1000000 + i));
            if (!is_left) own = replaced(std::move(own), "Liao", "Li");
            const std::string name = '/' + std::to_string(i) + ".cif";
            std::ofstream(of(side, size) + name, std::ios::binary) << own;
            all << own;
            if (is_left) continue;
            own = replaced(replaced(std::move(own), "data_1", "data_2"), "database_code", "x");
            own = replaced(replaced(std::move(own), "C N2 Sr", "C"), "cyanamide", name);
            std::ofstream(of("other", size) + '/' + std::to_string(9000 + i) + ".cif",
                          std::ios::binary)
                << own;
        }
    }

    fs::path data_;
    fs::path folder_ = [] {
        fs::path folder =
            fs::temp_directory_path() / ("lmrtext_memory_" + std::to_string(getpid()));
        fs::create_directories(folder);
        return folder;
    }();
};

/// One use of the program. "#" stands for the files of a size; more is held for more of them, or
/// not.
struct Use {
    const char* name;
    bool is_held;
    Arguments arguments;
};

const Use uses[] = {
    {"convert lines", false, {"convert", "--from", "plain", "--to", "html5", "lines#"}},
    {"convert lines, 2 jobs",
     false,
     {"convert", "--from", "plain", "--to", "html5", "-j2", "lines#"}},
    {"convert one line", true, {"convert", "--from", "plain", "--to", "html5", "line#"}},
    {"search lines",
     false,
     {"search", "--term", "oxo", "--how", "substring", "--to", "html5", "lines#"}},
    {"show files as text", false, {"show", "--view", "internal", "--to", "unicode", "left#"}},
    {"show files, 2 jobs",
     false,
     {"show", "--view", "internal", "--to", "unicode", "-j2", "left#"}},
    {"show files as JSON", false, {"show", "--view", "internal", "--to", "json", "left#"}},
    {"show files as CSV", false, {"show", "--view", "internal", "--to", "csv", "left#"}},
    {"show files as LaTeX", false, {"show", "--view", "internal", "--to", "latex", "left#"}},
    {"show files as Markdown", false, {"show", "--view", "internal", "--to", "markdown", "left#"}},
    {"show files as a page", true, {"show", "--view", "internal", "-o", "page#.html", "left#"}},
    {"show entries of one file",
     true,
     {"show", "--view", "internal", "--to", "unicode", "left#.cif"}},
    {"find in files", false, {"find", "strontium", "left#"}},
    {"check files", false, {"check", "--level", "note", "left#"}},
    {"check files as SARIF", false, {"check", "--level", "note", "--to", "sarif", "left#"}},
    {"compare folders", false, {"compare", "--all", "left#", "right#"}},
    {"compare folders as a page", true, {"compare", "-o", "page#.html", "left#", "right#"}},
    {"compare folders that differ", true, {"compare", "left#", "other#"}},
    {"set, without writing",
     false,
     {"set", "--field", "Color", "--value", "red", "--dry-run", "left#"}},
    {"set", false, {"set", "--field", "Color", "--value", "red", "right#"}},
};

/// Peaks that are promised to grow with the size may do so linearly, others hardly at all.
bool is_as_promised(const Use& use, const double (&peaks)[3]) {
    constexpr double noise = 1;  // MB
    if (!use.is_held) return peaks[2] < 1.25 * peaks[0] + noise;
    return peaks[2] - peaks[1] < 3.5 * (peaks[1] - peaks[0]) + noise;  // buffers double
}

/// Runs all; returns whether each is as it is promised.
bool run_all(const std::string& program, const fs::path& data) {
    const Files files(data);
    bool good = true;
    for (const Use& use : uses) {
        double peaks[3];
        for (std::size_t i = 0; i < 3; ++i) {
            Arguments arguments{program};
            for (const std::string& argument : use.arguments) {
                const std::size_t sign = argument.find('#');
                if (sign == std::string::npos) {
                    arguments.push_back(argument);
                } else {
                    arguments.push_back(files.of(argument.substr(0, sign), 1U << i));
                    arguments.back() += argument.substr(sign + 1);
                }
            }
            peaks[i] = run_program(arguments, 1).megabytes;  // 1: something was found
        }
        const bool as_promised = is_as_promised(use, peaks);
        good = good && as_promised;
        std::printf("%-28s %-5s %7.1f %7.1f %7.1f%s\n", use.name, use.is_held ? "held" : "flat",
                    peaks[0], peaks[1], peaks[2], as_promised ? "" : "  more than promised");
        std::fflush(stdout);
    }
    return good;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("memory: expected PROGRAM DATA_FOLDER\n", stderr);
        return 2;
    }
    try {
        return run_all(argv[1], argv[2]) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "memory: %s\n", error.what());
        return 2;
    }
}

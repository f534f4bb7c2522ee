#pragma once

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

inline std::string contents(const std::filesystem::path& path) {
    std::ostringstream all;
    all << std::ifstream(path, std::ios::binary).rdbuf();
    return all.str();
}

/// The words with blanks between them.
inline std::string words(std::initializer_list<std::string_view> list) {
    std::string all;
    for (const std::string_view word : list) all.append(word).push_back(' ');
    return all;
}

struct Result {
    int status;
    std::string out, err;
};

/// Runs the program in a folder of its own.
class Program : public testing::Test {
public:
    Program() { std::filesystem::create_directories(folder_); }
    ~Program() override { std::filesystem::remove_all(folder_); }

protected:
    std::string file(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
        return (folder_ / name).string();
    }

    Result run(const std::string& arguments, const std::string& input = "") const {
        return run_in_shell("'" PROGRAM "' " + arguments, input);
    }
    Result run_in_shell(const std::string& commands, const std::string& input = "") const {
        const std::string in = file("in", input);
        const std::string command = "cd '" + folder_.string() + "' && { " + commands;
        const int status = std::system((command + "; } <in 2>err >out").c_str());
        return {WEXITSTATUS(status), contents(folder_ / "out"), contents(folder_ / "err")};
    }

    std::filesystem::path folder_ = std::filesystem::temp_directory_path() /
                                    ("lmrtext_program_test_" + std::to_string(getpid()));
};

#pragma once

#include <CLI/CLI.hpp>
#include <map>
#include <string>
#include <vector>

// What is told of the program's commands elsewhere than in --help, from the same definitions.

/// The values that options with a fixed set of them take.
using Choices = std::map<const CLI::Option*, std::vector<std::string>>;

/// A manual page in roff.
std::string manual_page(const CLI::App& program, const std::string& version);

/// Scripts that complete the program's commands, options and values.
std::string bash_completion(const CLI::App& program, const Choices& choices);
std::string zsh_completion(const CLI::App& program, const Choices& choices);
std::string fish_completion(const CLI::App& program, const Choices& choices);

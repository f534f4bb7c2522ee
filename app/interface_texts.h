#pragma once

#include <CLI/CLI.hpp>
#include <map>
#include <string>
#include <vector>

// What is told of the program's commands elsewhere than in --help, from the same definitions.

/// A value of an option that takes one of a few.
struct Choice {
    std::string name;
    std::string help;
};

/// What an option that takes one of a few values is for, and these values.
struct ChoiceOption {
    std::string purpose;
    std::vector<Choice> values;
};

using Choices = std::map<const CLI::Option*, ChoiceOption>;

/// A manual page in roff.
std::string manual_page(const CLI::App& program, const Choices& choices,
                        const std::string& version);

/// The same in Markdown: the commands with their options, and their values.
std::string manual_in_markdown(const CLI::App& program, const Choices& choices);

/// Scripts that complete the program's commands, options and values.
std::string bash_completion(const CLI::App& program, const Choices& choices);
std::string zsh_completion(const CLI::App& program, const Choices& choices);
std::string fish_completion(const CLI::App& program, const Choices& choices);

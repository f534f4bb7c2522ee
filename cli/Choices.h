#pragma once

#include <CLI/CLI.hpp>
#include <map>
#include <string>
#include <vector>

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

/// The options that take one of a few values, for what is told of the program elsewhere than in
/// --help.
using Choices = std::map<const CLI::Option*, ChoiceOption>;

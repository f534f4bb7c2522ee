#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Choices.h"

// What the program's definitions say of its commands, for the texts that are made of them.

std::string joined(const std::vector<std::string>& words, const std::string& separator);

std::vector<const CLI::App*> commands_of(const CLI::App& program);
std::string names_of(const std::vector<const CLI::App*>& commands);

/// The names of an option as they are typed; none for a positional argument.
std::vector<std::string> flags_of(const CLI::Option& option);
bool takes_value(const CLI::Option& option);
/// What the option is for, without its values.
std::string purpose_of(const CLI::Option& option, const Choices& choices);
/// What the option takes, without the limits that CLI11 appends to the name.
std::string type_of(const CLI::Option& option);
/// The names of its values.
std::string names_of(const ChoiceOption& option);

/// The values that options of one name take in all commands together.
struct ValueTable {
    std::string flag;
    std::vector<std::string> commands;
    struct Value {
        Choice choice;
        std::vector<std::string> commands;
    };
    std::vector<Value> values;

    /// What a value means, and where it may be given if not everywhere.
    std::string help(const Value& value) const;
};

std::vector<ValueTable> value_tables(const CLI::App& program, const Choices& choices);

/// The first clause of a description, which lists of completions have room for.
std::string brief(const std::string& description);
/// `text` with a backslash before each of `signs`.
std::string escaped(const std::string& text, std::string_view signs);

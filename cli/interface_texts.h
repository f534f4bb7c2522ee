#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "cli/Choices.h"

// What is told of the program's commands elsewhere than in --help, from the same definitions; a
// file each.

/// A manual page in roff.
std::string manual_page(const CLI::App& program, const Choices& choices,
                        const std::string& version);
/// The same in Markdown: the commands with their options, and their values.
std::string manual_in_markdown(const CLI::App& program, const Choices& choices);

/// Scripts that complete the program's commands, options and values.
std::string bash_completion(const CLI::App& program, const Choices& choices);
std::string zsh_completion(const CLI::App& program, const Choices& choices);
std::string fish_completion(const CLI::App& program, const Choices& choices);

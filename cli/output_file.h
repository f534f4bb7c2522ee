#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "cli/Places.h"
#include "cli/TextOutput.h"
#include "output/Output.h"

// The file that a command may write to instead of standard output.

/// Adds the option that names the file; the path stays empty without it, or is "-".
void add_output_option(CLI::App& command, std::string& path);

/// What to write where nobody has chosen: what the ending of the path says, or for an empty one
/// what suits standard output. Null, which is reported, where nothing has that ending.
const Output* output_for(std::span<const Output> outputs, const std::string& path);

/// Begins the file, or standard output for an empty path. Throws std::system_error, and InputError
/// where it is one of `places`, which are to be read.
std::unique_ptr<TextOutput> begin_output(const std::string& path, const std::vector<Place>& places);

#pragma once

#include <CLI/CLI.hpp>

#include "tasks/EntryComparison.h"

/// Adds the options that say what counts when texts are compared.
void add_comparison_options(CLI::App& command, ComparisonSettings& settings);

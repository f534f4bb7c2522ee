#pragma once

#include <span>
#include <string>

#include "output/Output.h"

/// The target for the terminal that standard output is, or null when it is none; one without
/// colours when NO_COLOR is set or the terminal knows none.
const RichTextTarget* target_of_terminal();

/// What a command writes to standard output where nothing else is asked for: the target of the
/// terminal, or where it is none that for `otherwise`.
const Output* output_of(std::span<const Output> outputs, RichTextTarget::Use otherwise);

/// What writes such files, by the ending of the path, whose case does not count; a page where there
/// is no ending, and null where nothing has that ending.
const Output* output_of_path(std::span<const Output> outputs, const std::string& path);

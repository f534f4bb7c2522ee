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

/// The target that writes such files, by the ending of the path, or null.
const RichTextTarget* target_of_path(const std::string& path);

#pragma once

#include <vector>

#include "markup/RichTextTarget.h"

/// What a command writes: the mark-up of a target, or a form of its own.
struct Output {
    const char* name;
    const char* help;
    const RichTextTarget* target;  // null: the command's own form
};

/// All targets, and a command's own forms behind them.
std::vector<Output> outputs_with(const std::vector<Output>& own_forms);

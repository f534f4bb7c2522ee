#pragma once

#include <span>

#include "app/Target.h"

/// What a command writes: the mark-up of a target, or a form of its own.
struct Output {
    const char* name;
    const char* help;
    const Target* target;  // null: the command's own form
};

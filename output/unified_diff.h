#pragma once

#include <string>
#include <string_view>

#include "entries/Splice.h"

/// What the splices change in the bytes of a file as a unified diff, with three lines of context,
/// that patch -p1 takes; empty where they change nothing. Lines end with line feeds alone: the
/// carriage returns before them are part of what is compared. With colours it is for terminals:
/// what would act there is shown instead. O(n) for n bytes, before and behind.
std::string unified_diff(const std::string& file, std::string_view bytes, const Splices& splices,
                         bool with_colors = false);

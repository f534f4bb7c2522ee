#pragma once

#include <optional>
#include <string_view>

#include "text/StringSlice.h"

/// A temperature or a range of them, in K, and where a text says so.
struct MeltingPoint {
    StringSlice slice;                   // in bytes of the text
    double from, to;                     // equal for one temperature
    std::optional<unsigned int> hyphen;  // of a range, a position in the text
};

/// The first number of `text` and, behind a hyphen, the number that ends the range: "411-413".
std::optional<MeltingPoint> find_melting_point(std::string_view text);

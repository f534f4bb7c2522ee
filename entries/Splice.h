#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Bytes of a file, and what stands in their place.
struct Splice {
    std::size_t from = 0;  ///< Where they stand in the file, from 0.
    std::string before;    ///< What stands there.
    std::string after;     ///< What shall.

    friend bool operator==(const Splice&, const Splice&) = default;
};

/// A change of a file: ascending, none within another.
using Splices = std::vector<Splice>;

/// The bytes with each splice done; `from` is that of the bytes before all of them. Throws
/// std::invalid_argument where something else stands than the splices say. Linear.
std::string spliced(std::string_view bytes, const Splices& splices);

/// What undoes them, for the bytes that they have made.
Splices inverse(const Splices& splices);

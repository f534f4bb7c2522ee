#pragma once

#include <array>
#include <optional>
#include <string_view>

/// A cell that users look for: "10.5,12.1,9.8~0.05".
struct AskedCell {
    /// Edges in Å, in any order.
    std::array<double, 3> lengths;
    /// The angles in degrees that go with them: alpha with a. None: any.
    std::optional<std::array<double, 3>> angles;
    double tolerance = 0.01;  ///< How far each value may be from the entry's,
    bool is_relative = true;  ///< as a part of it, not in its unit.

    /// Edges and, where they are asked for, angles, between commas or blanks; behind "~" the
    /// tolerance, in per cent where that sign is there.
    static std::optional<AskedCell> read(std::string_view text);

    /// Whether edges and angles are the same, in some order of the axes.
    bool is_near(const std::array<double, 3>& other_lengths,
                 const std::array<double, 3>& other_angles) const;
};

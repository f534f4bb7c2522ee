#pragma once

#include <string>
#include <string_view>

namespace gemmi {
struct SpaceGroup;
}

/// A space group and what the symbol that it was found by leaves open of its setting.
struct SpaceGroupSetting {
    const gemmi::SpaceGroup* group = nullptr;  ///< From gemmi's table; null: there is none.
    bool origin_is_open = false;  ///< Choice of origin, or of hexagonal or rhombohedral axes.
    bool axis_is_open = false;    ///< The unique axis, as in "P 21/c".
};

/// Finds the group of a symbol as files write it: "P 1 21/n 1", "P2(1)/n", "P 2_1/c", "p21/c",
/// "P2~1~2~1~2~1~", "R-3c:H", "R -3 c H", "F d -3 m Z", "F d 3 m", "P bar 1". The angles, in
/// degrees and 0 where they are not known, decide between the axes of rhombohedral groups.
SpaceGroupSetting find_space_group(std::string_view symbol, double alpha, double gamma);

/// Whether the two are of one number, and what is left open of the first allows the second.
bool allows(const SpaceGroupSetting& setting, const gemmi::SpaceGroup& group);

/// Of the group, from 1 to 230; 0 where there is none.
int number_of(const SpaceGroupSetting& setting);

/// The symbol with what it says of the origin or the axes, and of no more.
std::string name_of(const SpaceGroupSetting& setting);

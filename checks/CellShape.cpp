#include "checks/CellShape.h"

#include <gemmi/symmetry.hpp>
#include <iterator>

namespace {

enum Shape {
    triclinic,
    monoclinic_a,
    monoclinic_b,
    monoclinic_c,
    orthorhombic,
    tetragonal,
    hexagonal_axes,
    rhombohedral_axes,
    cubic,
};

constexpr CellShape shapes[] = {
    {"triclinic", {0, 0, 0}, false, 1},
    {"monoclinic with unique axis a", {0, 90, 90}, false, 1},
    {"monoclinic with unique axis b", {90, 0, 90}, false, 1},
    {"monoclinic with unique axis c", {90, 90, 0}, false, 1},
    {"orthorhombic", {90, 90, 90}, false, 1},
    {"tetragonal", {90, 90, 90}, false, 2},
    {"of hexagonal axes", {90, 90, 120}, false, 2},
    {"of rhombohedral axes", {0, 0, 0}, true, 3},
    {"cubic", {90, 90, 90}, false, 3},
};

/// 'a', 'b' or 'c' of a monoclinic group in one of its settings.
char unique_axis_of(const Spacegroup& group) {
    for (const gemmi::SpaceGroup& row : gemmi::spacegroup_tables::main) {
        if (row.number != group.number || group.symbol != row.hm) continue;
        for (const char c : std::string_view(row.qualifier)) {
            if (c >= 'a' && c <= 'c') return c;
        }
    }
    return 'b';
}

}  // namespace

std::string_view crystal_system_of(int number) {
    return gemmi::crystal_system_str(gemmi::crystal_system(gemmi::point_group(number)));
}

const CellShape& monoclinic_shape(char unique_axis) {
    if (unique_axis == 'a') return shapes[monoclinic_a];
    return shapes[unique_axis == 'c' ? monoclinic_c : monoclinic_b];
}

const CellShape& shape_of(const Spacegroup& group) {
    switch (gemmi::crystal_system(gemmi::point_group(group.number))) {
        case gemmi::CrystalSystem::Triclinic:
            return shapes[triclinic];
        case gemmi::CrystalSystem::Monoclinic:
            return monoclinic_shape(unique_axis_of(group));
        case gemmi::CrystalSystem::Orthorhombic:
            return shapes[orthorhombic];
        case gemmi::CrystalSystem::Tetragonal:
            return shapes[tetragonal];
        case gemmi::CrystalSystem::Cubic:
            return shapes[cubic];
        case gemmi::CrystalSystem::Trigonal:
        case gemmi::CrystalSystem::Hexagonal:
            break;
    }
    const bool is_rhombohedral = group.symbol.starts_with('R') && group.centring == 'P';
    return shapes[is_rhombohedral ? rhombohedral_axes : hexagonal_axes];
}

#include "host/Spacegroup.h"

#include <gemmi/symmetry.hpp>

bool Spacegroup::sohncke() const {
    return number >= 1 && number <= 230 && gemmi::is_sohncke(number);
}

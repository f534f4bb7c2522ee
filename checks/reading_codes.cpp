#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
    {"not-a-number", Level::error, "not a number",
     "The value of an item that holds a number is none: it has a unit or a word behind it, a comma "
     "for the point, or a number beyond use. A standard uncertainty in brackets belongs to a "
     "number: '10.234(5)'.",
     "_cell_measurement_temperature 100(2)\n_cell_formula_units_Z four\n",
     "_cell_measurement_temperature 100(2)\n_cell_formula_units_Z 4\n"},
    {"not-a-date", Level::error, "not a date",
     "The day when the file was made cannot be read. Day and month that only their order could "
     "tell apart, as in '9/7/2004', are no date either.",
     "_audit_creation_date 9/7/2004\n", "_audit_creation_date 9-Jul-2004\n"},
};

}  // namespace

std::span<const CheckCode> reading_codes() { return codes; }

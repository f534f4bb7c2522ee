#include "checks/in_decimals.h"

#include <cmath>
#include <sstream>

std::string in_decimals(double value, int decimals) {
    std::ostringstream text;
    UncertainValue{value, 0, decimals}.print(text);
    return text.str();
}

double half_a_unit(const UncertainValue& number) { return 0.5 * std::pow(10.0, -number.decimals); }

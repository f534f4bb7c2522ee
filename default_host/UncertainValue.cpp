#include "host/UncertainValue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <ostream>

namespace {

// Beyond these a number is not a measurement; the buffer below holds any double with as many.
constexpr int most_decimals = 30;

/// As many as leave 2 to 19 in the last place.
int decimals_for(double uncertainty) {
    int decimals = 0;
    for (; decimals < most_decimals && std::round(uncertainty) < 2; ++decimals) uncertainty *= 10;
    return decimals;
}

}  // namespace

void UncertainValue::print(std::ostream& os) const {
    const bool uncertain = std::isfinite(uncertainty) && uncertainty > 0;
    int places = std::min(decimals, most_decimals);
    if (uncertain && places < 0) places = decimals_for(uncertainty);
    char buffer[400];
    char* const limit = std::end(buffer);
    const char* end =
        places < 0 ? std::to_chars(buffer, limit, value, std::chars_format::general, 6).ptr
                   : std::to_chars(buffer, limit, value, std::chars_format::fixed, places).ptr;
    os.write(buffer, end - buffer);
    const double last_place = uncertain ? std::round(uncertainty * std::pow(10.0, places)) : 0;
    if (last_place < 1 || std::isinf(last_place)) return;
    end = std::to_chars(buffer, limit, last_place, std::chars_format::fixed, 0).ptr;
    os.put('(').write(buffer, end - buffer).put(')');
}

std::ostream& operator<<(std::ostream& os, const UncertainValue& value) {
    value.print(os);
    return os;
}

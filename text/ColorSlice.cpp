#include "text/ColorSlice.h"

#include <ostream>

void ColorSlice::print(std::ostream& os) const { os << slice_ << ' ' << static_cast<int>(color_); }

std::ostream& operator<<(std::ostream& os, const ColorSlice& slice) {
    slice.print(os);
    return os;
}

#include "text/ColorSlice.h"

#include <ostream>

std::ostream& operator<<(std::ostream& os, const ColorSlice& slice) {
    return os << slice.slice() << ' ' << static_cast<int>(slice.color());
}

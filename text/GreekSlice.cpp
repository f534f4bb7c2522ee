#include "text/GreekSlice.h"

#include <ostream>

std::ostream& operator<<(std::ostream& os, const GreekSlice& slice) {
    return os << slice.slice() << ' ' << static_cast<int>(slice.symbol());
}

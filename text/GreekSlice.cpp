#include "text/GreekSlice.h"

#include <ostream>

void GreekSlice::print(std::ostream& os) const { os << slice_ << ' ' << static_cast<int>(symbol_); }

std::ostream& operator<<(std::ostream& os, const GreekSlice& slice) {
    slice.print(os);
    return os;
}

#include "host/Date.h"

#include <ostream>

namespace {

void print_two_digits(std::ostream& os, int number) { os << '-' << number / 10 << number % 10; }

}  // namespace

void Date::print(std::ostream& os) const {
    os << year;
    print_two_digits(os, month);
    print_two_digits(os, day);
}

std::ostream& operator<<(std::ostream& os, const Date& date) {
    date.print(os);
    return os;
}

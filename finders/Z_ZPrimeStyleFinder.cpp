#include "finders/Z_ZPrimeStyleFinder.h"

#include <stdexcept>

#include "finders/internal/find_first.h"

namespace {

constexpr char empty_text[] = "Z_ZPrimeStyleFinder empty text error";
constexpr char bad_text[] = "Z_ZPrimeStyleFinder bad text error";

}  // namespace

Z_ZPrimeStyleFinder::~Z_ZPrimeStyleFinder() = default;

void Z_ZPrimeStyleFinder::bold(std::vector<StringSlice>& out) const {
    out.emplace_back(z_, z_ + 1);
    out.emplace_back(z_prime_, z_prime_ + 2);
}

void Z_ZPrimeStyleFinder::calc_tag_positions() {
    if (text().empty()) throw std::runtime_error(empty_text);
    z_ = find_first(text(), "Z", bad_text);
    z_prime_ = find_first(text(), "Z'", bad_text);
}

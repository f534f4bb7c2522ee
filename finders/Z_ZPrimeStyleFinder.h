#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the labels of a text such as "Z: 4 Z': 1": bold. The plain Z must come first.
class Z_ZPrimeStyleFinder : public InputTextStyleFinder {
public:
    ~Z_ZPrimeStyleFinder() override;

    /// The first "Z" and the first "Z'" of the text.
    void bold(std::vector<StringSlice>& out) const override;
    /// Throws std::runtime_error "Z_ZPrimeStyleFinder empty text error" and, when a label is
    /// missing, "Z_ZPrimeStyleFinder bad text error".
    void calc_tag_positions() override;

private:
    unsigned int z_ = 0;
    unsigned int z_prime_ = 0;
};

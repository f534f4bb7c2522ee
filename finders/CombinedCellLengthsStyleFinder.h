#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the labels of cell lengths such as "a 5.1 b 7.25(1) c 9": bold.
class CombinedCellLengthsStyleFinder : public InputTextStyleFinder {
public:
    ~CombinedCellLengthsStyleFinder() override;

    /// The first "a", "b" and "c" of the text.
    void bold(std::vector<StringSlice>& out) const override;
    /// Throws std::runtime_error "CombinedCellLengthsStyleFinder bad text error" when a label is
    /// missing, as all are in an empty text.
    void calc_tag_positions() override;

private:
    unsigned int a_ = 0;
    unsigned int b_ = 0;
    unsigned int c_ = 0;
};

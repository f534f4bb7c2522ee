#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the labels of cell angles such as "a 90 b 100.5(3) g 90": bold, and shown as the Greek
/// letters that they stand for.
class CellAngleStyleFinder : public InputTextStyleFinder {
public:
    ~CellAngleStyleFinder() override;

    /// The first "a", "b" and "g" of the text.
    void bold(std::vector<StringSlice>& out) const override;
    /// The same labels, as alpha, beta and gamma.
    void greek(std::vector<GreekSlice>& out) const override;
    /// Throws std::runtime_error "CellAngleStyleFinder empty text string error" and, when a label
    /// is missing, "CellAngleStyleFinder bad text string error".
    void calc_tag_positions() override;

private:
    unsigned int a_ = 0;
    unsigned int b_ = 0;
    unsigned int g_ = 0;
};

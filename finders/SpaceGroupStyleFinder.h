#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a space-group symbol such as "P2<sub>1</sub>/c" or "P<bar>1</bar>": screw
/// axes below the line, the bar of an inversion axis, and the tags, which are invisible.
class SpaceGroupStyleFinder : public InputTextStyleFinder {
public:
    ~SpaceGroupStyleFinder() override;

    /// What stands between each "<sub>" and the next "</sub>"; a "<sub>" without one ends the
    /// search.
    void subscripts(std::vector<StringSlice>& out) const override;
    /// What stands between the first "<bar>" and the first "</bar>"; further bars stay text. Throws
    /// std::range_error "length of StringSlice error" when the end tag comes first.
    void overstrike(std::vector<StringSlice>& out) const override;
    /// The two tags of the bar, then those of each subscript.
    void invisible(std::vector<StringSlice>& out) const override;
};

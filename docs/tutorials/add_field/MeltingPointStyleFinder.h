#pragma once

#include <optional>

#include "MeltingPoint.h"
#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a melting point such as "Tm 411-413 K dec.": T in italics, m below the line,
/// an en dash for the hyphen of a range, and "dec." for those that decompose in red. Other texts
/// are plain.
class MeltingPointStyleFinder : public InputTextStyleFinder {
public:
    ~MeltingPointStyleFinder() override;

    void subscripts(std::vector<StringSlice>& out) const override;
    void italic(std::vector<StringSlice>& out) const override;
    void replacement_text(std::vector<ReplacementTextSlice>& out) const override;
    void color(std::vector<ColorSlice>& out) const override;
    void calc_tag_positions() override;

private:
    std::optional<unsigned int> label_, hyphen_, decomposes_;
};

#pragma once

#include <optional>

#include "markup/DisplayedText.h"
#include "text/TextItem.h"

/// How positions are told: in which units, and of which text.
struct TextPositions {
    DisplayedText::Unit unit = DisplayedText::bytes;
    bool of_displayed = false;  ///< Of the text that a reader sees, not of that with its codes.
};

/// Tells ranges of one item so. Where bytes of the text itself are asked for, it costs nothing.
class PositionTeller {
public:
    PositionTeller(const TextItem& item, const TextPositions& positions);

    StringSlice told(const StringSlice& in_item) const;

private:
    TextPositions positions_;
    std::optional<DisplayedText> shown_;
};

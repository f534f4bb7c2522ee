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
    /// The same; `displayed` is what is shown of the item, and is referred to.
    PositionTeller(const TextItem& item, const DisplayedText& displayed,
                   const TextPositions& positions);
    PositionTeller(const PositionTeller&) = delete;
    PositionTeller& operator=(const PositionTeller&) = delete;

    StringSlice told(const StringSlice& in_item) const;

private:
    void tell_of_text(const TextItem& item);

    TextPositions positions_;
    std::optional<DisplayedText> own_;
    const DisplayedText* shown_ = nullptr;  // by which positions are mapped; null: as they are
};

#include "output/TextPositions.h"

#include "finders/InputTextStyleFinder.h"

PositionTeller::PositionTeller(const TextItem& item, const TextPositions& positions)
    : positions_(positions) {
    if (positions.of_displayed) {
        shown_ = &own_.emplace(item);
    } else {
        tell_of_text(item);
    }
}

PositionTeller::PositionTeller(const TextItem& item, const DisplayedText& displayed,
                               const TextPositions& positions)
    : positions_(positions) {
    if (positions.of_displayed) {
        shown_ = &displayed;
    } else {
        tell_of_text(item);
    }
}

void PositionTeller::tell_of_text(const TextItem& item) {
    if (positions_.unit == DisplayedText::bytes) return;
    shown_ = &own_.emplace(TextItem(make_handle<InputTextStyleFinder>(), item.characters()));
}

StringSlice PositionTeller::told(const StringSlice& in_item) const {
    return shown_ ? shown_->shown(in_item, positions_.unit) : in_item;
}

#include "output/TextPositions.h"

#include "finders/InputTextStyleFinder.h"

PositionTeller::PositionTeller(const TextItem& item, const TextPositions& positions)
    : positions_(positions) {
    if (positions.of_displayed) {
        shown_.emplace(item);
    } else if (positions.unit != DisplayedText::bytes) {
        shown_.emplace(TextItem(make_handle<InputTextStyleFinder>(), item.characters()));
    }
}

StringSlice PositionTeller::told(const StringSlice& in_item) const {
    return shown_ ? shown_->shown(in_item, positions_.unit) : in_item;
}

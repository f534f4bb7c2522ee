#include "tasks/SearchedText.h"

SearchedText::SearchedText(const CifEntry& entry, const Field& field, const Folding& folding)
    : entry_(entry), field_(field), folding_(folding), text_(text_of(entry, field)) {
    const auto may_hold_codes = text_.source->may_hold_codes;
    if (!may_hold_codes || !may_hold_codes(text_.text)) return;
    displayed_.emplace(TextItem(text_.source->make_finder(), text_.text));
}

const FoldedText& SearchedText::folded() const {
    if (!folded_) folded_.emplace(shown(), folding_);
    return *folded_;
}

StringSlice SearchedText::in_item(const StringSlice& shown) const {
    return displayed_ ? displayed_->in_item(shown, DisplayedText::bytes) : shown;
}

#pragma once

#include <optional>
#include <string>

#include "comparison/FoldedText.h"
#include "markup/DisplayedText.h"
#include "tasks/Field.h"
#include "text/TextItem.h"

/// What an entry has of a field, as terms look at it. Refers to the entry and the field.
class SearchedText {
public:
    /// Styles the text where what is shown may be else than what stands in it; throws what the text
    /// fails with.
    SearchedText(const CifEntry& entry, const Field& field, const Folding& folding);

    const CifEntry& entry() const { return entry_; }
    const Field& field() const { return field_; }
    const FieldText& text() const { return text_; }

    /// As a reader sees it; terms give ranges of this.
    const std::string& shown() const { return displayed_ ? displayed_->text() : text_.text; }
    /// That folded. It is made when it is asked for.
    const FoldedText& folded() const;

    /// The range of the field's text that is shown there.
    StringSlice in_item(const StringSlice& shown) const;

private:
    const CifEntry& entry_;
    const Field& field_;
    const Folding& folding_;
    FieldText text_;
    std::optional<DisplayedText> displayed_;  // none: the text is shown as it is
    mutable std::optional<FoldedText> folded_;
};

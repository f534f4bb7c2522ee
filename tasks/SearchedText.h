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
    SearchedText(const CifEntry& entry, const Field& field, const Folding& folding);

    const CifEntry& entry() const { return entry_; }
    const Field& field() const { return field_; }
    const FieldText& text() const { return text_; }

    /// The letters and digits of ASCII that are shown, folded, where this is known without styling
    /// the text and may tell that a term is not there; else null.
    const std::string* skeleton() const;

    /// As a reader sees it; terms give ranges of this. Styles the text where what is shown may be
    /// else than what stands in it; throws what the text fails with.
    const std::string& shown() const;
    /// That folded.
    const FoldedText& folded() const;

    /// The range of the field's text that is shown there.
    StringSlice in_item(const StringSlice& shown) const;

private:
    const CifEntry& entry_;
    const Field& field_;
    const Folding& folding_;
    FieldText text_;
    Source::Codes codes_;
    // Made when they are asked for; there is no displayed text where the text has no codes.
    mutable std::optional<DisplayedText> displayed_;
    mutable std::optional<FoldedText> folded_;
    mutable std::optional<std::string> skeleton_;
};

/// The letters and digits of ASCII in a text.
std::string skeleton_of(std::string_view text);

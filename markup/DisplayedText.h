#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/StringSlice.h"

class TextAtom;
class TextItem;

/// The text that a reader of an item sees: Greek letters and replacement texts in place of what
/// they cover, hidden parts gone, nothing raised; and the way between positions in the item and in
/// that text. Does not refer to the item.
class DisplayedText {
public:
    /// In which positions in the displayed text are counted. Bytes that are not UTF-8 count as one
    /// character each, or together as many as a decoder would replace at once.
    enum Unit : int { bytes, characters, utf16 };

    /// O(n + m log m) for n characters and m styles.
    explicit DisplayedText(const TextItem& item);
    /// The same, by one who has the runs of the item already, as it gives them.
    DisplayedText(const TextItem& item, const std::vector<TextAtom>& atoms);

    /// In UTF-8 where the item is.
    const std::string& text() const { return text_; }
    /// The length of text().
    unsigned int size(Unit unit) const { return runs_.back().shown[unit]; }

    /// Where a range of the item is shown. What covers a character, or a code, only in part covers
    /// it whole. O(log n), as is the other way.
    StringSlice shown(const StringSlice& in_item, Unit unit) const;
    /// The range of the item that is shown there, without the hidden parts around it.
    StringSlice in_item(const StringSlice& shown, Unit unit) const;

    /// Where a caret of the item stands in the displayed text: one inside of a character, a code or
    /// a hidden part stands before it.
    unsigned int shown_caret(unsigned int in_item, Unit unit) const;
    /// Where a caret of the displayed text stands in the item: behind what is hidden there.
    unsigned int item_caret(unsigned int shown, Unit unit) const;

private:
    /// A run of ASCII that is shown as it is, or one character or code and what is shown for it.
    struct Run {
        unsigned int in_item;   // where it begins
        unsigned int shown[3];  // likewise, by unit
        bool is_plain;
    };
    using Runs = std::vector<Run>;

    void add_plain(std::string_view text);
    void add_covered(unsigned int size, std::string_view shown);
    Runs::const_iterator run_of(unsigned int in_item) const;
    unsigned int shown_end(unsigned int in_item, Unit unit) const;
    unsigned int item_end(unsigned int shown, Unit unit) const;

    std::string text_;
    Runs runs_;  // the last is the end of both texts
};

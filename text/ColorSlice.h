#pragma once

#include <iosfwd>

#include "text/StringSlice.h"
#include "text/TextItem.h"

/// A run of characters and the colour it is shown in.
class ColorSlice {
public:
    /// Covers positions [from, to); throws what StringSlice(from, to) throws.
    ColorSlice(unsigned int from, unsigned int to, TextItem::ColorName color)
        : slice_(from, to), color_(color) {}

    /// The run: its first position, one past its last, and both.
    /// @{
    unsigned int from() const { return slice_.from(); }
    unsigned int to() const { return slice_.to(); }
    const StringSlice& slice() const { return slice_; }
    /// @}
    TextItem::ColorName color() const { return color_; }  ///< As given, unchecked.

    /// Writes from, to and the colour's value with blanks between: "3 7 2".
    void print(std::ostream& os) const;

    friend bool operator==(const ColorSlice&, const ColorSlice&) = default;

private:
    StringSlice slice_;
    TextItem::ColorName color_;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const ColorSlice& slice);

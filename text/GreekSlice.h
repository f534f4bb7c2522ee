#pragma once

#include <iosfwd>

#include "text/StringSlice.h"
#include "text/TextItem.h"

/// A run of characters and the Greek letter it stands for.
class GreekSlice {
public:
    /// Covers positions [from, to); throws what StringSlice(from, to) throws.
    GreekSlice(unsigned int from, unsigned int to, TextItem::GreekSymbol symbol)
        : slice_(from, to), symbol_(symbol) {}

    /// The run: its first position, one past its last, and both.
    /// @{
    unsigned int from() const { return slice_.from(); }
    unsigned int to() const { return slice_.to(); }
    const StringSlice& slice() const { return slice_; }
    /// @}
    /// no_symbol where the run looks like a letter and stands for none.
    TextItem::GreekSymbol symbol() const { return symbol_; }

    /// Writes from, to and the symbol's value with blanks between: "0 5 1".
    void print(std::ostream& os) const;

    friend bool operator==(const GreekSlice&, const GreekSlice&) = default;

private:
    StringSlice slice_;
    TextItem::GreekSymbol symbol_;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const GreekSlice& slice);

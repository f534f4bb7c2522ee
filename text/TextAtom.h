#pragma once

#include <iosfwd>
#include <string>
#include <utility>

#include "text/TextAtomProperty.h"

/// A run of text inside which no style begins or ends, and what is in force over it.
class TextAtom {
public:
    /// Copies both, or takes the text.
    /// @{
    TextAtom(const std::string& text, const TextAtomProperty& property)
        : text_(text), property_(property) {}
    TextAtom(std::string&& text, const TextAtomProperty& property)
        : text_(std::move(text)), property_(property) {}
    /// @}

    /// The characters as they stand in the item, whatever is shown in their place.
    std::string text() const { return text_; }

    /// What the property of that name says in TextAtomProperty.
    /// @{
    int valign() const { return property_.valign(); }
    bool bold() const { return property_.bold(); }
    bool italic() const { return property_.italic(); }
    TextItem::ColorName color() const { return property_.color(); }
    bool overstrike() const { return property_.overstrike(); }
    bool invisible() const { return property_.invisible(); }
    std::string replacement_txt() const { return property_.replacement_txt(); }
    TextItem::GreekSymbol greek() const { return property_.greek(); }
    /// @}

    /// Writes a line with the text in quotes, then the properties, the first beside their label.
    void print(std::ostream& os) const;

    friend bool operator==(const TextAtom&, const TextAtom&) = default;

private:
    std::string text_;
    TextAtomProperty property_;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const TextAtom& atom);

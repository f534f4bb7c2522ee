#pragma once

#include <iosfwd>
#include <string>

#include "text/TextItem.h"

/// Everything that is in force over a run of text. The default is plain black text on the base
/// line.
class TextAtomProperty {
public:
    /// Below 0 a subscript, above 0 a superscript, 0 on the base line.
    int valign() const { return valign_; }
    bool bold() const { return bold_; }                   ///< Whether the run is bold.
    bool italic() const { return italic_; }               ///< Whether it is italic.
    TextItem::ColorName color() const { return color_; }  ///< Of the characters.
    bool overstrike() const { return overstrike_; }       ///< Whether a bar is over it.
    bool invisible() const { return invisible_; }         ///< Whether it is not shown.
    /// The text shown in place of the run; empty: the run is shown as it is, unless its replacement
    /// text is empty, which cannot be told from none.
    std::string replacement_txt() const { return replacement_txt_; }
    /// The letter shown in place of the run; no_symbol: none.
    TextItem::GreekSymbol greek() const { return greek_; }

    /// Sets what the reader of that name gives; nothing is checked.
    /// @{
    void set_valign(int valign) { valign_ = valign; }
    void set_bold(bool bold) { bold_ = bold; }
    void set_italic(bool italic) { italic_ = italic; }
    void set_color(TextItem::ColorName color) { color_ = color; }
    void set_overstrike(bool overstrike) { overstrike_ = overstrike; }
    void set_invisible(bool invisible) { invisible_ = invisible; }
    void set_replacement_txt(const std::string& text) { replacement_txt_ = text; }
    void set_greek(TextItem::GreekSymbol greek) { greek_ = greek; }
    /// @}

    /// Writes eight lines, each a tab, a label and a value; enumerators as their numbers.
    void print(std::ostream& os) const;

    friend bool operator==(const TextAtomProperty&, const TextAtomProperty&) = default;

private:
    int valign_ = 0;
    bool bold_ = false;
    bool italic_ = false;
    TextItem::ColorName color_ = TextItem::black;
    bool overstrike_ = false;
    bool invisible_ = false;
    std::string replacement_txt_;
    TextItem::GreekSymbol greek_ = TextItem::no_symbol;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const TextAtomProperty& property);

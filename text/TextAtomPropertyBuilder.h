#pragma once

#include <stack>
#include <string>
#include <vector>

#include "text/TextAtomProperty.h"

/// Keeps the property set in force while styles begin and end. Only colours nest: every other
/// property is a switch, so that the inner of two styles of one kind ends both.
class TextAtomPropertyBuilder {
public:
    /// Starts from `initial`, whose colour is not among those that end_color() returns to.
    explicit TextAtomPropertyBuilder(const TextAtomProperty& initial) : property_(initial) {}

    /// A copy of what is in force now.
    TextAtomProperty text_atom_property() const { return property_; }
    /// What is in force until the next change.
    const TextAtomProperty& property() const { return property_; }

    /// A style of that kind begins; its property is set, and set back to the default where one
    /// ends, whether or not one had begun.
    /// @{
    void begin_bold() { property_.set_bold(true); }
    void end_bold() { property_.set_bold(false); }
    void begin_italic() { property_.set_italic(true); }
    void end_italic() { property_.set_italic(false); }
    void begin_overstrike() { property_.set_overstrike(true); }
    void end_overstrike() { property_.set_overstrike(false); }
    void begin_invisible() { property_.set_invisible(true); }
    void end_invisible() { property_.set_invisible(false); }
    void begin_valign(int valign) { property_.set_valign(valign); }
    void end_valign() { property_.set_valign(0); }
    void begin_greek(TextItem::GreekSymbol symbol) { property_.set_greek(symbol); }
    void end_greek() { property_.set_greek(TextItem::no_symbol); }
    void begin_replacement_text(const std::string& text) { property_.set_replacement_txt(text); }
    void end_replacement_text() { property_.set_replacement_txt(""); }
    /// @}
    /// Sets the colour, and remembers it until its end_color().
    void begin_color(TextItem::ColorName color);
    /// Returns to the colour begun before and not yet ended, or to black.
    void end_color();

private:
    TextAtomProperty property_;
    std::stack<TextItem::ColorName, std::vector<TextItem::ColorName>> colors_;
};

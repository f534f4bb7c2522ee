#pragma once

#include <iosfwd>
#include <string>

#include "text/StringSlice.h"

class RichTextTagFactory;
class TextAtomPropertyBuilder;

/// One typographic property laid on one slice of a text item. A style is activated once, on its
/// slice, and only read from then on.
class TextItemStyle {
public:
    /// What a style does to its slice. Targets whose tags depend on what they enclose ask for it.
    enum class Kind {
        other,  ///< A style of an application's own: targets write its tags and know no more.
        bold,
        italic,
        overstrike,
        invisible,
        subscript,
        superscript,
        greek,
        replacement_text,
        color
    };

    /// On no slice yet.
    TextItemStyle() : slice_(0, 0) {}
    TextItemStyle(const TextItemStyle&) = delete;
    TextItemStyle& operator=(const TextItemStyle&) = delete;
    virtual ~TextItemStyle();

    /// The base's is `other`. It never changes.
    virtual Kind kind() const { return Kind::other; }
    /// The factory's text that opens, and that closes, this style; throws what the factory throws.
    /// @{
    virtual std::string start_tag(const RichTextTagFactory& factory) const = 0;
    virtual std::string end_tag(const RichTextTagFactory& factory) const = 0;
    /// @}
    /// Switches the style's property on, and off, in the builder.
    /// @{
    virtual void text_atom_begin(TextAtomPropertyBuilder& builder) const = 0;
    virtual void text_atom_end(TextAtomPropertyBuilder& builder) const = 0;
    /// @}
    /// Writes one line: the style's label and the slice, as in "BoldStyle: From 2 To 5". The base
    /// writes the slice and ends the line; each subclass writes its label and calls it.
    virtual void print(std::ostream& os) const;

    /// Lays the style on [from, to); throws what StringSlice(from, to) throws.
    void activate(unsigned int from, unsigned int to) { slice_ = StringSlice(from, to); }

    /// Where it lies, and both ends of that; [0, 0) until the style is activated.
    /// @{
    const StringSlice& slice() const { return slice_; }
    unsigned int from() const { return slice_.from(); }
    unsigned int to() const { return slice_.to(); }
    /// @}

private:
    StringSlice slice_;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const TextItemStyle& style);

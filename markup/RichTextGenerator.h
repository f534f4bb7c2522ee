#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/THandle.h"
#include "markup/RichTextData.h"
#include "text/TextItemStyle.h"

class RichTextTagFactory;
class TextItemToOtherGreek;

/// Writes a rich text as the mark-up of one target. The tags are a factory's, the Greek letters a
/// converter's; a subclass pairs the two.
///
/// A generator may be used for any number of texts in turn, but keeps scratch state during a call:
/// one generator belongs to one thread at a time.
class RichTextGenerator {
public:
    /// Shares both. Every later use of a null handle raises its error.
    RichTextGenerator(THandle<RichTextTagFactory> tag_factory,
                      THandle<TextItemToOtherGreek> greek_converter);
    RichTextGenerator(const RichTextGenerator&) = delete;
    RichTextGenerator& operator=(const RichTextGenerator&) = delete;
    virtual ~RichTextGenerator();

    /// Writes every character, or what its style shows in its place, between the tags of the
    /// styles. Where a style that covers characters begins inside another such range, the covering
    /// ends with the inner one. A style that ends beyond the text is not closed, and styles that
    /// cross give tags that cross. Throws what factory and converter throw, the null-handle error
    /// for a null handle in a list, and std::length_error "too many styles error" for a list of
    /// more than 1073741824. O(n + m log m) for n characters, written ones included, and m styles.
    virtual std::string mark_up_text(const RichTextData& data) const;

protected:
    /// A list of styles, or a part of one, which the caller keeps.
    /// @{
    using Styles = std::span<const THandle<TextItemStyle>>;
    using GreekStyles = std::span<const THandle<GreekStyle>>;
    using ReplacementTextStyles = std::span<const THandle<ReplacementTextStyle>>;
    /// @}

    // The three operations that follow are points of extension for targets whose characters or tags
    // depend on what stands around them. The database's mark-up, CIF, HTML and Qt keep the base's.

    /// Writes at most `limit` characters (at least 1) from the front of `text` to `result` in the
    /// target's form, takes them off `text`, and returns their number. The base writes bytes as
    /// they are; a target that escapes, or whose characters are longer, overrides this.
    virtual unsigned int write_characters(std::string& result, std::string_view& text,
                                          unsigned int limit) const;

    /// Writes the letter that a Greek style shows, in the converter's spelling, as add_text_block()
    /// writes text. A target whose letters are mark-up themselves overrides this.
    virtual void add_letter(std::string& result, const std::string& letter, unsigned int& column,
                            unsigned int line_length) const;

    /// Writes the tag that opens or closes a style of that kind. Called in pairs; a style without
    /// any tag is left out.
    virtual void write_tag(std::string& result, const std::string& tag, TextItemStyle::Kind kind,
                           bool opens) const;

    /// The factory, which lives as long as this; raises the null-handle error without one.
    const RichTextTagFactory& tag_factory() const { return *tag_factory_; }

    /// closing_tags() and then opening_tags().
    std::string get_slice_tags(unsigned int position, Styles styles) const;
    /// The tags due at `position`, the one opened last first; forgets them.
    std::string closing_tags(unsigned int position) const;
    /// The opening tags of the styles that begin at `position` and are not empty, the one that ends
    /// last first and equal ones in list order; remembers their closing tags.
    std::string opening_tags(unsigned int position, Styles styles) const;

    /// Whether a style of the list begins at `position`; the first one becomes the current style of
    /// its kind, for a subclass that walks the text itself. Linear in the list.
    /// @{
    bool has_invisible_style(unsigned int position, Styles styles) const;
    bool has_greek_style(unsigned int position, GreekStyles styles) const;
    bool has_replacement_text_style(unsigned int position, ReplacementTextStyles styles) const;
    /// @}
    /// The current style of that kind; null before the first, as mark_up_text() leaves it.
    /// @{
    const THandle<TextItemStyle>& current_invisible_style() const { return current_invisible_; }
    const THandle<GreekStyle>& current_greek_style() const { return current_greek_; }
    const THandle<ReplacementTextStyle>& current_replacement_text_style() const {
        return current_replacement_text_;
    }
    /// @}

    /// Appends `block` to `result`, with a line break wherever `column`, the number of characters
    /// written so far, becomes a multiple of `line_length`; 0 breaks no lines.
    void add_text_block(std::string& result, std::string_view block, unsigned int& column,
                        unsigned int line_length) const;

private:
    struct EndTag {
        std::string text;
        TextItemStyle::Kind kind;
    };
    struct Pass;

    // Inlined in the source, which alone uses them: every turn of mark_up_text() comes by both.
    /// What closing_tags() returns, at the end of `result`.
    [[gnu::always_inline]] inline void append_closing_tags(std::string& result,
                                                           unsigned int position) const;
    /// Writes the opening tags of beginning_, which begin at one position and are not empty, and
    /// remembers the closing ones.
    [[gnu::always_inline]] inline void open(std::string& result) const;

    THandle<RichTextTagFactory> tag_factory_;
    THandle<TextItemToOtherGreek> greek_converter_;

    // The closing tags in the order of opening, and a heap of those that are pending: the position
    // where each is due before the complement of its index, so that of those due at one position
    // the last opened comes first.
    mutable std::vector<EndTag> end_tags_;
    mutable std::vector<std::uint64_t> pending_;
    mutable THandle<TextItemStyle> current_invisible_;
    mutable THandle<GreekStyle> current_greek_;
    mutable THandle<ReplacementTextStyle> current_replacement_text_;
    // Scratch of mark_up_text(): where each style begins, before its list and its index there; and
    // the styles that begin at one position.
    mutable std::vector<std::uint64_t> starts_;
    mutable std::vector<const TextItemStyle*> beginning_;
};

#pragma once

#include <string>

#include "text/TextItem.h"

/// The mark-up vocabulary of one output target: the texts that open and close each style, and the
/// text that ends a line. A factory never changes, so that any number of threads may share it.
class RichTextTagFactory {
public:
    RichTextTagFactory() = default;
    RichTextTagFactory(const RichTextTagFactory&) = delete;
    RichTextTagFactory& operator=(const RichTextTagFactory&) = delete;
    virtual ~RichTextTagFactory();

    /// What opens, or closes, that style; empty where the target has no tag for it.
    /// @{
    virtual std::string start_bold() const = 0;
    virtual std::string end_bold() const = 0;
    virtual std::string start_italic() const = 0;
    virtual std::string end_italic() const = 0;
    /// What opens a colour, likewise; targets with colours throw std::invalid_argument, as
    /// EnumTextMapping::text() does, for a value that is not a colour.
    virtual std::string start_color(TextItem::ColorName color) const = 0;
    virtual std::string end_color() const = 0;
    virtual std::string start_superscript() const = 0;
    virtual std::string end_superscript() const = 0;
    virtual std::string start_subscript() const = 0;
    virtual std::string end_subscript() const = 0;
    virtual std::string start_greek() const = 0;
    virtual std::string end_greek() const = 0;
    virtual std::string start_overstrike() const = 0;
    virtual std::string end_overstrike() const = 0;
    virtual std::string start_invisible() const = 0;
    virtual std::string end_invisible() const = 0;
    virtual std::string start_replacement_text() const = 0;
    virtual std::string end_replacement_text() const = 0;
    /// @}
    /// What ends a line that is broken at the wanted length; empty where the target breaks none.
    virtual std::string line_break() const = 0;
};

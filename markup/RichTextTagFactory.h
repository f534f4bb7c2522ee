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

    virtual std::string start_bold() const = 0;
    virtual std::string end_bold() const = 0;
    virtual std::string start_italic() const = 0;
    virtual std::string end_italic() const = 0;
    /// Throws std::invalid_argument where the target has no word for the colour.
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
    virtual std::string line_break() const = 0;
};

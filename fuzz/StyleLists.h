#pragma once

#include <ostream>
#include <string>

#include "host/VectorOutput.h"
#include "markup/RichTextData.h"
#include "tests/Random.h"
#include "text/BoldStyle.h"
#include "text/ColorStyle.h"
#include "text/GreekStyle.h"
#include "text/InvisibleStyle.h"
#include "text/ItalicStyle.h"
#include "text/OverStrikeStyle.h"
#include "text/ReplacementTextStyle.h"
#include "text/VerticalAlignStyle.h"

/// Hand-made lists of styles, which may break every rule of a text item.
struct StyleLists {
    RichTextData::Styles styles;
    RichTextData::Styles invisible_styles;
    RichTextData::GreekStyles greek_styles;
    RichTextData::ReplacementTextStyles replacement_styles;

    StyleLists& bold(unsigned int from, unsigned int to) {
        return add(make_handle<BoldStyle>(), from, to);
    }
    StyleLists& italic(unsigned int from, unsigned int to) {
        return add(make_handle<ItalicStyle>(), from, to);
    }
    StyleLists& color(unsigned int from, unsigned int to) {
        return color(from, to, TextItem::green4);
    }
    StyleLists& color(unsigned int from, unsigned int to, TextItem::ColorName name) {
        return add(make_handle<ColorStyle>(name), from, to);
    }
    StyleLists& bar(unsigned int from, unsigned int to) {
        return add(make_handle<OverStrikeStyle>(), from, to);
    }
    StyleLists& subscript(unsigned int from, unsigned int to) {
        return add(make_handle<VerticalAlignStyle>(-1), from, to);
    }
    StyleLists& superscript(unsigned int from, unsigned int to) {
        return add(make_handle<VerticalAlignStyle>(1), from, to);
    }
    StyleLists& invisible(unsigned int from, unsigned int to) {
        invisible_styles.push_back(make_handle<InvisibleStyle>());
        return add(invisible_styles.back(), from, to);
    }
    StyleLists& greek(unsigned int from, unsigned int to) {
        greek_styles.push_back(make_handle<GreekStyle>(TextItem::mu));
        return add(greek_styles.back(), from, to);
    }
    StyleLists& replacement(unsigned int from, unsigned int to) {
        replacement_styles.push_back(make_handle<ReplacementTextStyle>("R&S"));
        return add(replacement_styles.back(), from, to);
    }

    /// Up to seven styles with ends up to `last`.
    static StyleLists random(Random& random, unsigned int last) {
        constexpr StyleLists& (StyleLists::*adders[])(unsigned int, unsigned int) = {
            &StyleLists::bold,        &StyleLists::color,     &StyleLists::superscript,
            &StyleLists::bar,         &StyleLists::invisible, &StyleLists::greek,
            &StyleLists::replacement, &StyleLists::italic};
        StyleLists lists;
        for (unsigned int i = random() % 8; i > 0; --i) {
            const unsigned int from = random() % (last + 1);
            const unsigned int to = from + random() % (last + 1 - from);
            (lists.*adders[random() % std::size(adders)])(from, to);
        }
        return lists;
    }

    RichTextData data(const std::string& text, unsigned int line_length = 0) const {
        return {text, line_length, styles, invisible_styles, greek_styles, replacement_styles};
    }

    friend std::ostream& operator<<(std::ostream& os, const StyleLists& lists) {
        return os << VectorOutput(lists.styles);
    }

private:
    StyleLists& add(THandle<TextItemStyle> style, unsigned int from, unsigned int to) {
        style->activate(from, to);
        styles.push_back(std::move(style));
        return *this;
    }
};

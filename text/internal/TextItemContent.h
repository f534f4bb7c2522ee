#pragma once

#include <string>
#include <utility>
#include <vector>

#include "text/GreekSlice.h"
#include "text/GreekStyle.h"
#include "text/ReplacementTextStyle.h"
#include "text/TextItem.h"
#include "text/internal/StylePool.h"
#include "text/internal/StyleRules.h"

/// What an item holds, behind its pointer.
struct TextItem::Content {
    explicit Content(THandle<InputTextStyleFinder> reader) : finder(std::move(reader)) {}

    /// Sees to it that the next push_back() cannot fail.
    template <class List>
    static void make_room(List& list) {
        if (list.size() == list.capacity()) list.reserve(2 * list.size() + 8);
    }

    using Add = void (StyleRules::*)(const StringSlice&);

    /// Adds a style that breaks no rule, to `own_list` too; leaves everything as it was when memory
    /// runs out.
    /// @{
    void append(THandle<TextItemStyle> style, Add add = &StyleRules::add_overlay) {
        make_room(styles);
        (rules.*add)(style->slice());
        styles.push_back(std::move(style));
    }
    template <class Style, class Base>
    void append(THandle<Style> style, std::vector<THandle<Base>>& own_list,
                Add add = &StyleRules::add_overlay) {
        make_room(own_list);
        append(style, add);
        own_list.push_back(std::move(style));
    }
    /// @}

    THandle<InputTextStyleFinder> finder;
    std::string text;
    unsigned int line_length = 0;
    // In order of creation. The last three hold styles of the first a second time.
    std::vector<THandle<TextItemStyle>> styles;
    std::vector<THandle<TextItemStyle>> invisible_styles;
    std::vector<THandle<GreekStyle>> greek_styles;
    std::vector<THandle<ReplacementTextStyle>> replacement_text_styles;
    StyleRules rules;
    StylePool pool;
    // Scratch of create_input_text_styles().
    std::vector<StringSlice> slices;
    std::vector<GreekSlice> letters;
};

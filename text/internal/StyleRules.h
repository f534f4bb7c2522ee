#pragma once

#include <map>
#include <vector>

#include "text/StringSlice.h"
#include "text/internal/StyleNodes.h"

/// The rules that the styles of one text obey, and what is remembered of those styles to check
/// them: no check walks the styles. A style of an ordinary kind is an overlay.
class StyleRules {
public:
    /// Forgets all styles, for a text of that length.
    void reset(unsigned int text_length);

    /// Whether a new style may lie on [from, to): each throws what TextItem says of its creators.
    /// @{
    void check_overlay(unsigned int from, unsigned int to) const;
    void check_color(unsigned int from, unsigned int to) const;
    void check_replacement_text(unsigned int from, unsigned int to);
    /// @}

    /// Remembers a style that has passed its check; leaves everything as it was when memory runs
    /// out.
    /// @{
    void add_overlay(const StringSlice& style);
    void add_color(const StringSlice& style);
    void add_replacement_text(const StringSlice& style);
    /// @}

private:
    void check_no_crossing(unsigned int from, unsigned int to) const;
    void check_not_within_replacement_text(unsigned int from, unsigned int to) const;
    void check_no_nested_replacement_text(unsigned int from, unsigned int to) const;

    unsigned int text_length_ = 0;
    StyleNodes nodes_;
    std::map<unsigned int, StringSlice> replacement_texts_;  // not empty, by their from
    std::vector<bool> colors_begin_;                         // by position; empty without colours
};

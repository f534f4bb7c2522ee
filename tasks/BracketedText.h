#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/THandle.h"
#include "text/StringSlice.h"
#include "text/TextItem.h"
#include "text/TextItemStyle.h"

/// A text with brackets inserted around some of its ranges, for targets that show no other marks.
class BracketedText {
public:
    /// `ranges` are disjoint and ascending; both brackets have one length.
    BracketedText(const std::string& text, const std::vector<StringSlice>& ranges,
                  std::string_view opening, std::string_view closing);

    /// An item with these styles of the text without brackets; colours are left out. A style that
    /// covers the place of a bracket goes on through it, what ends there ends before it and what
    /// begins there begins behind it.
    TextItem item(const std::vector<THandle<TextItemStyle>>& styles) const;

private:
    unsigned int begin_of(unsigned int position) const;
    unsigned int end_of(unsigned int position) const;

    std::string text_;
    unsigned int bracket_size_;
    std::vector<unsigned int> places_;  // of brackets, in the text without them
};

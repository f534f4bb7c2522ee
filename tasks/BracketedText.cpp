#include "tasks/BracketedText.h"

#include <algorithm>

#include "finders/InputTextStyleFinder.h"
#include "tasks/styles_of.h"
#include "text/Position.h"

BracketedText::BracketedText(const std::string& text, const std::vector<StringSlice>& ranges,
                             std::string_view opening, std::string_view closing)
    : bracket_size_(length_of(opening)) {
    unsigned int done = 0;
    const auto insert = [&](unsigned int position, std::string_view bracket) {
        text_.append(text, done, position - done).append(bracket);
        done = position;
        places_.push_back(position);
    };
    for (const StringSlice& range : ranges) {
        insert(range.from(), opening);
        insert(range.to(), closing);
    }
    text_.append(text, done);
}

TextItem BracketedText::item(const std::vector<THandle<TextItemStyle>>& styles) const {
    TextItem item(make_handle<InputTextStyleFinder>(), text_);
    for (const auto& style : styles) {
        if (style->kind() == TextItemStyle::Kind::color) continue;
        const unsigned int from = begin_of(style->from());
        lay_style(*style, from, style->slice().empty() ? from : end_of(style->to()), item);
    }
    return item;
}

unsigned int BracketedText::begin_of(unsigned int position) const {
    const auto next = std::upper_bound(places_.begin(), places_.end(), position);
    return position + bracket_size_ * static_cast<unsigned int>(next - places_.begin());
}

unsigned int BracketedText::end_of(unsigned int position) const {
    const auto next = std::lower_bound(places_.begin(), places_.end(), position);
    return position + bracket_size_ * static_cast<unsigned int>(next - places_.begin());
}

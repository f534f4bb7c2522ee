#include "tasks/BracketedText.h"

#include <algorithm>

#include "finders/InputTextStyleFinder.h"
#include "text/GreekStyle.h"
#include "text/Position.h"
#include "text/ReplacementTextStyle.h"

namespace {

using Kind = TextItemStyle::Kind;

/// Lays a style like that one on [from, to).
void lay(const TextItemStyle& style, unsigned int from, unsigned int to, TextItem& item) {
    switch (style.kind()) {
        case Kind::bold:
            return item.create_bold(from, to);
        case Kind::italic:
            return item.create_italic(from, to);
        case Kind::overstrike:
            return item.create_overstrike(from, to);
        case Kind::invisible:
            return item.create_invisible(from, to);
        case Kind::subscript:
            return item.create_subscript(from, to);
        case Kind::superscript:
            return item.create_superscript(from, to);
        case Kind::greek:
            return item.create_greek(from, to, dynamic_cast<const GreekStyle&>(style).symbol());
        case Kind::replacement_text:
            return item.create_replacement_text(
                from, to, dynamic_cast<const ReplacementTextStyle&>(style).replacement_text());
        case Kind::color:
        case Kind::other:
            return;
    }
}

}  // namespace

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
        const unsigned int from = begin_of(style->from());
        lay(*style, from, style->slice().empty() ? from : end_of(style->to()), item);
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

#include "markup/NestingRichTextGenerator.h"

#include <algorithm>
#include <iterator>

#include "markup/RichTextTagFactory.h"
#include "markup/Utf8.h"
#include "markup/internal/NestedStyles.h"
#include "text/GreekStyle.h"
#include "text/Position.h"

NestingRichTextGenerator::~NestingRichTextGenerator() = default;

std::string NestingRichTextGenerator::mark_up_text(const RichTextData& data) const {
    const auto has_no_letter = [](const auto& style) {
        return style->symbol() == TextItem::no_symbol;
    };
    const bool all_letters = std::none_of(data.greek().begin(), data.greek().end(), has_no_letter);
    // So are all styles of a text item.
    if (all_letters && NestedStyles::are_nested(data.styles(), data.characters())) {
        return RichTextGenerator::mark_up_text(data);
    }
    const NestedStyles nested(data.styles(), data.characters());
    RichTextData::GreekStyles letters;
    std::remove_copy_if(data.greek().begin(), data.greek().end(), std::back_inserter(letters),
                        has_no_letter);
    return RichTextGenerator::mark_up_text(RichTextData(data.characters(), data.line_length(),
                                                        nested.styles(), data.invisible(), letters,
                                                        data.replacement_text()));
}

unsigned int NestingRichTextGenerator::write_characters(std::string& result, std::string_view& text,
                                                        unsigned int limit) const {
    unsigned int characters = 0;
    std::size_t end = 0;
    if (limit == no_position) {  // no line to break: nobody counts
        end = text.size();
    } else {
        for (; end < text.size() && characters < limit; ++characters) {
            end += end_of_character(text.substr(end));
        }
    }
    write_text(result, text.substr(0, end));
    text.remove_prefix(end);
    return characters;
}

void NestingRichTextGenerator::add_letter_as_mark_up(std::string& result, const std::string& letter,
                                                     unsigned int& column,
                                                     unsigned int line_length) const {
    result += letter;
    ++column;
    if (line_length != 0 && column % line_length == 0) result += tag_factory().line_break();
}

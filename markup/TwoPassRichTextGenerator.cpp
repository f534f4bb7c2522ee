#include "markup/TwoPassRichTextGenerator.h"

TwoPassRichTextGenerator::~TwoPassRichTextGenerator() = default;

std::string TwoPassRichTextGenerator::mark_up_text(const RichTextData& data) const {
    tags_.clear();
    open_.clear();
    const std::string text = NestingRichTextGenerator::mark_up_text(data);
    return compose(text, tags_);
}

void TwoPassRichTextGenerator::write_tag(std::string& result, const std::string& tag,
                                         TextItemStyle::Kind kind, bool opens) const {
    const std::size_t index = tags_.size();
    std::size_t partner = index;
    if (opens) {
        open_.push_back(index);
    } else {
        partner = open_.back();
        open_.pop_back();
        tags_[partner].partner = index;
    }
    tags_.push_back({result.size(), tag, kind, opens, partner});
}

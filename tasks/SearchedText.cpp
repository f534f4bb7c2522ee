#include "tasks/SearchedText.h"

namespace {

/// What may look like tags is left out.
std::string without_tags(std::string_view text) {
    std::string rest;
    while (true) {
        const std::size_t begin = text.find('<');
        rest += text.substr(0, begin);
        const std::size_t end = begin == text.npos ? begin : text.find('>', begin);
        if (end == text.npos) return rest;
        text.remove_prefix(end + 1);
    }
}

}  // namespace

SearchedText::SearchedText(const CifEntry& entry, const Field& field, const Folding& folding)
    : entry_(entry),
      field_(field),
      folding_(folding),
      text_(text_of(entry, field)),
      codes_(text_.source->codes_in(text_.text)) {
    // The letters are then not their names.
    if (codes_ == Source::Codes::marks && !folding.greek) codes_ = Source::Codes::letters;
}

const std::string* SearchedText::skeleton() const {
    if (codes_ != Source::Codes::marks) return nullptr;
    if (!skeleton_) skeleton_ = skeleton_of(::folded(without_tags(text_.text), folding_));
    return &*skeleton_;
}

const std::string& SearchedText::shown() const {
    if (codes_ == Source::Codes::none) return text_.text;
    if (!displayed_) displayed_.emplace(TextItem(text_.source->make_finder(), text_.text));
    return displayed_->text();
}

const FoldedText& SearchedText::folded() const {
    if (!folded_) folded_.emplace(shown(), folding_);
    return *folded_;
}

StringSlice SearchedText::in_item(const StringSlice& shown) const {
    return displayed_ ? displayed_->in_item(shown, DisplayedText::bytes) : shown;
}

std::string skeleton_of(std::string_view text) {
    std::string skeleton;
    for (const char c : text) {
        const bool is_letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (is_letter || (c >= '0' && c <= '9')) skeleton += c;
    }
    return skeleton;
}

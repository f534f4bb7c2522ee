#include "tasks/SoughtText.h"

#include <algorithm>
#include <utility>

SoughtText::SoughtText(std::string text) : text_(std::move(text)) {
    if (text_.empty()) return;
    kept_.reserve(text_.size());
    kept_.push_back(0);
    for (std::size_t i = 1; i < text_.size(); ++i) {
        kept_.push_back(matched_with(kept_.back(), text_[i]));
    }
}

bool SoughtText::stands_in(std::string_view other) const {
    return text_.empty() || Places(*this, other).next() != std::string_view::npos;
}

/// How much of the text stands at the end of what `matched` bytes of it stood at the end of before
/// `c`.
std::size_t SoughtText::matched_with(std::size_t matched, char c) const {
    while (matched > 0 && text_[matched] != c) matched = kept_[matched - 1];
    return text_[matched] == c ? matched + 1 : 0;
}

std::size_t SoughtText::Places::next() {
    const std::string& text = sought_.text_;
    while (read_ < other_.size()) {
        if (matched_ == 0) {  // as mostly
            read_ = std::min(other_.find(text.front(), read_), other_.size());
            if (read_ == other_.size()) break;
        }
        matched_ = sought_.matched_with(matched_, other_[read_]);
        ++read_;
        if (matched_ == text.size()) {
            matched_ = sought_.kept_[matched_ - 1];
            return read_ - text.size();
        }
    }
    return std::string_view::npos;
}

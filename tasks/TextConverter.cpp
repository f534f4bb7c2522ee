#include "tasks/TextConverter.h"

#include <algorithm>

TextConverter::TextConverter(const Source& from, const RichTextTarget& to, unsigned int line_length)
    : may_lack_letters_(from.may_lack_letters),
      line_length_(line_length),
      finder_(from.make_finder()),
      generator_(to.make_generator()),
      item_(finder_) {}

std::string TextConverter::convert(const std::string& text, std::vector<Problem>& problems) {
    item_.set_text(text);
    item_.set_line_length(line_length_);
    std::string result = item_.mark_up_text(*generator_);
    if (may_lack_letters_ && has_unknown_letter()) {
        Problem& problem = problems.emplace_back();
        problem.level = Problem::Level::warning;
        problem.what = "Greek code without a letter";
    }
    return result;
}

/// Whether the last text has a Greek letter that no target can name and most leave out.
bool TextConverter::has_unknown_letter() {
    letters_.clear();
    finder_->greek(letters_);
    return std::any_of(letters_.begin(), letters_.end(), [](const GreekSlice& letter) {
        return letter.symbol() == TextItem::no_symbol;
    });
}

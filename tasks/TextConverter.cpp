#include "tasks/TextConverter.h"

TextConverter::TextConverter(const Source& from, const RichTextTarget& to, unsigned int line_length,
                             const AsciiForm* ascii)
    : from_(from),
      line_length_(line_length),
      finder_(from.make_finder()),
      generator_(to.make_generator()),
      item_(finder_),
      losses_(to),
      ascii_(ascii) {}

std::string TextConverter::convert(const std::string& text, std::vector<Problem>& problems) {
    item_.set_text(text);
    item_.set_line_length(line_length_);
    std::string result = losses_.mark_up(item_, generator_.get());
    if (from_.note_doubts) from_.note_doubts(*finder_, problems);
    losses_.note_seen_styles(problems);
    if (ascii_) return ascii_->in_ascii(result);
    losses_.note_characters(result, problems);
    return result;
}

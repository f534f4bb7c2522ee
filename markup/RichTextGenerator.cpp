#include "markup/RichTextGenerator.h"

#include <algorithm>
#include <utility>

#include "host/KOVRLog.h"
#include "host/VectorOutput.h"
#include "markup/RichTextTagFactory.h"
#include "markup/TextItemToOtherGreek.h"
#include "text/GreekStyle.h"
#include "text/Position.h"
#include "text/ReplacementTextStyle.h"

namespace {

constexpr int debug_level = 3;

/// The styles of a list in groups that begin at one position, to be asked for in ascending order.
template <class Style>
class StylesByStart {
public:
    /// `styles` must live as long as this: only a list that is not in order yet is copied.
    explicit StylesByStart(const std::vector<THandle<Style>>& styles) : sorted_(styles) {
        // Dereferences every handle, so that a null one raises its error whatever the text.
        if (styles.size() == 1) static_cast<void>(*styles.front());
        if (std::is_sorted(styles.begin(), styles.end(), begins_before)) return;
        copy_ = styles;
        std::stable_sort(copy_.begin(), copy_.end(), begins_before);
        sorted_ = copy_;
    }
    StylesByStart(const StylesByStart&) = delete;
    StylesByStart& operator=(const StylesByStart&) = delete;

    /// Where the next group after those taken begins.
    unsigned int next_start() const {
        return taken_ < sorted_.size() ? sorted_[taken_]->from() : no_position;
    }

    /// The styles that begin at `position`, in list order.
    std::span<const THandle<Style>> take(unsigned int position) {
        const std::size_t first = taken_;
        while (next_start() == position) ++taken_;
        return sorted_.subspan(first, taken_ - first);
    }

private:
    static bool begins_before(const THandle<Style>& a, const THandle<Style>& b) {
        return a->from() < b->from();
    }

    std::span<const THandle<Style>> sorted_;
    std::vector<THandle<Style>> copy_;
    std::size_t taken_ = 0;
};

template <class Style>
bool find_start(unsigned int position, std::span<const THandle<Style>> styles,
                THandle<Style>& found) {
    for (const auto& style : styles) {
        if (style->from() != position) continue;
        found = style;
        return true;
    }
    return false;
}

}  // namespace

RichTextGenerator::RichTextGenerator(THandle<RichTextTagFactory> tag_factory,
                                     THandle<TextItemToOtherGreek> greek_converter)
    : tag_factory_(std::move(tag_factory)), greek_converter_(std::move(greek_converter)) {}

RichTextGenerator::~RichTextGenerator() = default;

std::string RichTextGenerator::mark_up_text(const RichTextData& data) const {
    if (KOVRLog::is_open(debug_level)) {
        KOVRLog::start_debug_line(debug_level)
            << "RichTextGenerator::mark_up_text all styles" << data.styles();
        KOVRLog::end_debug_line();
    }
    pending_.clear();
    current_invisible_ = {};
    current_greek_ = {};
    current_replacement_text_ = {};

    const std::string text = data.text();
    const unsigned int n = length_of(text);
    StylesByStart styles(data.styles());
    StylesByStart invisible(data.invisible());
    StylesByStart replacement_text(data.replacement_text());
    StylesByStart greek(data.greek());

    std::string result;
    result.reserve(n + 16 * data.styles().size());
    unsigned int column = 0;
    unsigned int covered_until = 0;
    // Each turn stands where something begins or ends and goes on to the next such position.
    for (unsigned int i = 0; i < n;) {
        append_slice_tags(result, i, styles.take(i));
        const Styles invisible_here = invisible.take(i);
        const ReplacementTextStyles replacement_here = replacement_text.take(i);
        const GreekStyles greek_here = greek.take(i);
        unsigned int plain_from = i + 1;  // a covering style swallows at least one character
        if (has_invisible_style(i, invisible_here)) {
            covered_until = current_invisible_->to();
        } else if (has_replacement_text_style(i, replacement_here)) {
            covered_until = current_replacement_text_->to();
            add_text_block(result, current_replacement_text_->replacement_text(), column,
                           data.line_length());
        } else if (has_greek_style(i, greek_here)) {
            covered_until = current_greek_->to();
            add_letter(result, greek_converter_->convert(current_greek_->symbol()), column,
                       data.line_length());
        } else {
            plain_from = i;
        }
        const unsigned int next_end = pending_.empty() ? n : pending_.begin()->first;
        i = std::min({n, next_end, styles.next_start(), invisible.next_start(),
                      replacement_text.next_start(), greek.next_start()});
        plain_from = std::max(plain_from, covered_until);
        if (plain_from < i) {
            add_text_block(result, std::string_view(text).substr(plain_from, i - plain_from),
                           column, data.line_length());
        }
    }
    append_slice_tags(result, n, styles.take(n));
    return result;
}

unsigned int RichTextGenerator::write_characters(std::string& result, std::string_view& text,
                                                 unsigned int limit) const {
    const std::string_view written = text.substr(0, limit);
    result += written;
    text.remove_prefix(written.size());
    return length_of(written);
}

void RichTextGenerator::add_letter(std::string& result, const std::string& letter,
                                   unsigned int& column, unsigned int line_length) const {
    add_text_block(result, letter, column, line_length);
}

void RichTextGenerator::write_tag(std::string& result, const std::string& tag,
                                  bool /*opens*/) const {
    result += tag;
}

std::string RichTextGenerator::get_slice_tags(unsigned int position, Styles styles) const {
    std::string tags;
    append_slice_tags(tags, position, styles);
    return tags;
}

std::string RichTextGenerator::closing_tags(unsigned int position) const {
    std::string tags;
    append_closing_tags(tags, position);
    return tags;
}

std::string RichTextGenerator::opening_tags(unsigned int position, Styles styles) const {
    std::string tags;
    append_opening_tags(tags, position, styles);
    return tags;
}

void RichTextGenerator::append_slice_tags(std::string& result, unsigned int position,
                                          Styles styles) const {
    append_closing_tags(result, position);
    append_opening_tags(result, position, styles);
}

void RichTextGenerator::append_closing_tags(std::string& result, unsigned int position) const {
    const auto [first, last] = pending_.equal_range(position);
    for (auto tag = last; tag != first;) {
        --tag;
        write_tag(result, tag->second, false);
    }
    pending_.erase(first, last);
}

void RichTextGenerator::append_opening_tags(std::string& result, unsigned int position,
                                            Styles styles) const {
    beginning_.clear();
    for (const auto& style : styles) {
        if (style->from() == position && !style->slice().empty()) beginning_.push_back(style.get());
    }
    if (beginning_.size() > 1) {
        std::stable_sort(
            beginning_.begin(), beginning_.end(),
            [](const TextItemStyle* a, const TextItemStyle* b) { return a->to() > b->to(); });
    }
    for (const TextItemStyle* style : beginning_) {
        const std::string start_tag = style->start_tag(*tag_factory_);
        std::string end_tag = style->end_tag(*tag_factory_);
        if (start_tag.empty() && end_tag.empty()) continue;
        write_tag(result, start_tag, true);
        pending_.emplace(style->to(), std::move(end_tag));
    }
}

bool RichTextGenerator::has_invisible_style(unsigned int position, Styles styles) const {
    return find_start(position, styles, current_invisible_);
}

bool RichTextGenerator::has_greek_style(unsigned int position, GreekStyles styles) const {
    return find_start(position, styles, current_greek_);
}

bool RichTextGenerator::has_replacement_text_style(unsigned int position,
                                                   ReplacementTextStyles styles) const {
    return find_start(position, styles, current_replacement_text_);
}

void RichTextGenerator::add_text_block(std::string& result, std::string_view block,
                                       unsigned int& column, unsigned int line_length) const {
    while (!block.empty()) {
        const unsigned int room =
            line_length == 0 ? no_position : line_length - column % line_length;
        column += write_characters(result, block, room);
        if (line_length != 0 && column % line_length == 0) result += tag_factory_->line_break();
    }
}

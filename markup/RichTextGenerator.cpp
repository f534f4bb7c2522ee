#include "markup/RichTextGenerator.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

#include "host/KOVRLog.h"
#include "host/VectorOutput.h"
#include "markup/RichTextTagFactory.h"
#include "markup/TextItemToOtherGreek.h"
#include "markup/internal/style_starts.h"
#include "text/GreekStyle.h"
#include "text/Position.h"
#include "text/ReplacementTextStyle.h"
#include "text/internal/sort_runs.h"

using namespace style_starts;

namespace {

constexpr int debug_level = 3;

unsigned int due_at(std::uint64_t pending) { return static_cast<unsigned int>(pending >> 32); }

bool has_styles(const RichTextData& data) {
    return !data.styles().empty() || !data.invisible().empty() || !data.greek().empty() ||
           !data.replacement_text().empty();
}

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

void RichTextGenerator::append_closing_tags(std::string& result, unsigned int position) const {
    const auto write = [&](std::uint64_t pending) {
        const EndTag& tag = end_tags_[no_position - static_cast<unsigned int>(pending)];
        write_tag(result, tag.text, tag.kind, false);
    };
    if (!pending_.empty() && due_at(pending_.front()) < position) {
        // Tags that a caller has passed over stay pending, but not in the way of those due here.
        const auto due =
            std::partition(pending_.begin(), pending_.end(),
                           [&](std::uint64_t pending) { return due_at(pending) != position; });
        std::sort(due, pending_.end());
        std::for_each(due, pending_.end(), write);
        pending_.erase(due, pending_.end());
        std::make_heap(pending_.begin(), pending_.end(), std::greater());
    }
    while (!pending_.empty() && due_at(pending_.front()) == position) {
        write(pending_.front());
        std::pop_heap(pending_.begin(), pending_.end(), std::greater());
        pending_.pop_back();
    }
    if (pending_.empty()) end_tags_.clear();
}

void RichTextGenerator::open(std::string& result) const {
    sort_few(beginning_,
             [](const TextItemStyle* a, const TextItemStyle* b) { return a->to() > b->to(); });
    for (const TextItemStyle* style : beginning_) {
        const std::string start_tag = style->start_tag(*tag_factory_);
        EndTag end{style->end_tag(*tag_factory_), style->kind()};
        if (start_tag.empty() && end.text.empty()) continue;
        write_tag(result, start_tag, end.kind, true);
        pending_.push_back(std::uint64_t{style->to()} << 32 |
                           (no_position - to_position(end_tags_.size())));
        end_tags_.push_back(std::move(end));
        std::push_heap(pending_.begin(), pending_.end(), std::greater());
    }
}

/// One call of mark_up_text(): the text, and how much of it is written.
struct RichTextGenerator::Pass {
    Pass(const RichTextGenerator& writer, const RichTextData& rich_text, std::string& written)
        : generator(writer), data(rich_text), result(written) {
        generator.starts_.clear();
        note_starts(data.styles(), tag_list);
        note_starts(data.invisible(), invisible_list);
        note_starts(data.replacement_text(), replacement_list);
        note_starts(data.greek(), greek_list);
        sort_runs(generator.starts_);
        generator.starts_.push_back(start_key(no_position, tag_list, 0));  // behind every position
        start = generator.starts_.data();
    }

    template <class Style>
    void note_starts(const std::vector<THandle<Style>>& styles, unsigned int list) {
        if (styles.size() > most_styles) throw std::length_error("too many styles error");
        unsigned int index = 0;
        for (const THandle<Style>& style : styles) {
            generator.starts_.push_back(start_key(style->from(), list, index++));
        }
    }

    void append_opening_tags(unsigned int position) {
        if (*start >= start_key(position, tag_list + 1, 0)) return;
        generator.beginning_.clear();
        for (; *start < start_key(position, tag_list + 1, 0); ++start) {
            const TextItemStyle& style = *data.styles()[index_of(*start)];
            if (!style.slice().empty()) generator.beginning_.push_back(&style);
        }
        generator.open(result);
    }

    /// Writes what a style shows in place of the characters from `position` on; returns the first
    /// position whose character is to be written as it is.
    unsigned int write_cover(unsigned int position) {
        if (*start >= start_key(position, lists, 0)) return std::max(position, covered_until);
        const unsigned int index = index_of(*start);
        switch (list_of(*start)) {
            case invisible_list:
                covered_until = data.invisible()[index]->to();
                break;
            case replacement_list: {
                const ReplacementTextStyle& style = *data.replacement_text()[index];
                covered_until = style.to();
                generator.add_text_block(result, style.replacement_text(), column,
                                         data.line_length());
                break;
            }
            default: {
                const GreekStyle& style = *data.greek()[index];
                covered_until = style.to();
                generator.add_letter(result, generator.greek_converter_->convert(style.symbol()),
                                     column, data.line_length());
            }
        }
        while (*start < start_key(position, lists, 0)) ++start;
        return std::max(position + 1, covered_until);  // it swallows at least one character
    }

    /// Where something begins or ends next, at most `end`.
    unsigned int next_turn(unsigned int end) const {
        const std::vector<std::uint64_t>& pending = generator.pending_;
        return std::min(
            {end, position_of(*start), pending.empty() ? end : due_at(pending.front())});
    }

    const RichTextGenerator& generator;
    const RichTextData& data;
    std::string& result;
    const std::uint64_t* start = nullptr;  // of the next style that begins
    unsigned int column = 0;
    unsigned int covered_until = 0;
};

std::string RichTextGenerator::mark_up_text(const RichTextData& data) const {
    if (KOVRLog::is_open(debug_level)) {
        KOVRLog::start_debug_line(debug_level)
            << "RichTextGenerator::mark_up_text all styles" << VectorOutput(data.styles());
        KOVRLog::end_debug_line();
    }
    end_tags_.clear();
    pending_.clear();
    current_invisible_ = {};
    current_greek_ = {};
    current_replacement_text_ = {};
    const std::string_view text = data.characters();
    const unsigned int n = length_of(text);
    std::string result;
    result.reserve(n + 16 * (data.styles().size() + 1) + 8 * data.greek().size());
    if (!has_styles(data)) {  // as most texts
        unsigned int column = 0;
        add_text_block(result, text, column, data.line_length());
        return result;
    }
    Pass pass(*this, data, result);
    // Each turn stands where something begins or ends and goes on to the next such position.
    for (unsigned int i = 0;;) {
        append_closing_tags(result, i);
        pass.append_opening_tags(i);
        if (i == n) return result;
        const unsigned int plain_from = pass.write_cover(i);
        i = pass.next_turn(n);
        if (plain_from < i) {
            add_text_block(result, text.substr(plain_from, i - plain_from), pass.column,
                           data.line_length());
        }
    }
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
                                  TextItemStyle::Kind /*kind*/, bool /*opens*/) const {
    result += tag;
}

std::string RichTextGenerator::get_slice_tags(unsigned int position, Styles styles) const {
    return closing_tags(position) + opening_tags(position, styles);
}

std::string RichTextGenerator::closing_tags(unsigned int position) const {
    std::string tags;
    append_closing_tags(tags, position);
    return tags;
}

std::string RichTextGenerator::opening_tags(unsigned int position, Styles styles) const {
    beginning_.clear();
    for (const auto& style : styles) {
        if (style->from() == position && !style->slice().empty()) beginning_.push_back(style.get());
    }
    std::string tags;
    open(tags);
    return tags;
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

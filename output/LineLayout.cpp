#include "output/LineLayout.h"

#include <algorithm>
#include <cstring>

#include "finders/InputTextStyleFinder.h"
#include "text/TextItem.h"

namespace {

/// Whether every target writes the character of a label as it is.
bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == ' '; }

bool is_same(const ComparedField& field) {
    return field.verdict == Verdict::equal || field.verdict == Verdict::equivalent;
}

}  // namespace

LineLayout::LineLayout(const RichTextTarget& target)
    : target_(target), generator_(target.make_generator()) {}

LineLayout::~LineLayout() = default;

std::string LineLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    std::string lines = title(file + ": data_" + block);
    for (const EntryField& field : fields) {
        append_row(lines, target_.layout.indent, field.label, field.item.mark_up_text(*generator_));
    }
    return lines + target_.layout.foot;
}

std::string LineLayout::comparison(const Side& left, const Side& right,
                                   const std::vector<ComparedField>& fields) {
    std::string lines = title(left.file + " and " + right.file + ": data_" + left.block +
                              " and data_" + right.block);
    for (const ComparedField& field : fields) {
        const std::string left_text = mark_up(field.left), right_text = mark_up(field.right);
        append_row(lines, is_same(field) ? "= " : "< ", field.label, left_text);
        if (is_same(field) && left_text == right_text) continue;
        append_row(lines, is_same(field) ? "= " : "> ", field.label, right_text);
    }
    return lines + target_.layout.foot;
}

std::string LineLayout::written(const std::string& text) const {
    if (!target_.escapes) return text;
    return TextItem(make_handle<InputTextStyleFinder>(), text).mark_up_text(*generator_);
}

std::string LineLayout::mark_up(const std::optional<TextItem>& item) const {
    return item ? item->mark_up_text(*generator_) : "";
}

std::string LineLayout::title(const std::string& text) const {
    return target_.layout.before_title + written(text) + target_.layout.behind_title;
}

void LineLayout::append_row(std::string& lines, const char* sign, const char* label,
                            const std::string& mark_up) const {
    const bool is_plain = *sign == ' ' && std::all_of(label, label + std::strlen(label), is_letter);
    lines += target_.layout.before_row;
    lines += is_plain ? std::string(sign).append(label) : written(std::string(sign).append(label));
    lines.append(target_.layout.behind_label).append(mark_up).push_back('\n');
}

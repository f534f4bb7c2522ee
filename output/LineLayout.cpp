#include "output/LineLayout.h"

#include "finders/InputTextStyleFinder.h"
#include "text/TextItem.h"

LineLayout::LineLayout(const RichTextTarget& target)
    : target_(target), generator_(target.make_generator()) {}

LineLayout::~LineLayout() = default;

std::string LineLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    std::string lines = title(file + ": data_" + block);
    for (const EntryField& field : fields) {
        lines += row(target_.layout.indent + std::string(field.label),
                     field.item.mark_up_text(*generator_));
    }
    return lines + target_.layout.foot;
}

std::string LineLayout::comparison(const Side& left, const Side& right,
                                   const std::vector<ComparedField>& fields) {
    std::string lines = title(left.file + " and " + right.file + ": data_" + left.block +
                              " and data_" + right.block);
    for (const ComparedField& field : fields) {
        const std::string left_text = mark_up(field.left), right_text = mark_up(field.right);
        const std::string label = std::string(" ") + field.label;
        lines += row((field.same ? '=' : '<') + label, left_text);
        if (field.same && left_text == right_text) continue;
        lines += row((field.same ? '=' : '>') + label, right_text);
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

std::string LineLayout::row(const std::string& label, const std::string& mark_up) const {
    return target_.layout.before_row + written(label) + target_.layout.behind_label + mark_up +
           '\n';
}

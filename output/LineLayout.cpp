#include "output/LineLayout.h"

#include <algorithm>

#include "finders/InputTextStyleFinder.h"
#include "output/comparison_words.h"
#include "output/match_reason.h"
#include "text/TextItem.h"

namespace {

/// Whether every target writes the character of a label as it is.
bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == ' '; }

std::string name_of(const ComparisonLayout::Side& side) {
    return side.file + " data_" + side.block;
}

}  // namespace

LineLayout::LineLayout(const RichTextTarget& target)
    : target_(target), generator_(target.make_generator()), marks_(target) {}

LineLayout::~LineLayout() = default;

LaidOutPart LineLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    std::string lines = title(file + ": data_" + block);
    for (const EntryField& field : fields) {
        append_row(lines, target_.layout.indent, field.label, field.item.mark_up_text(*generator_));
        if (field.matches.empty()) continue;
        const std::string indent = target_.layout.indent + std::string("    ");
        append_row(lines, indent.c_str(), "found", written(reason_of(field.matches)));
    }
    return {lines + target_.layout.foot};
}

LaidOutPart LineLayout::comparison(const Side& left, const Side& right, PairingReason reason,
                                   const EntryComparison& compared) {
    std::string lines =
        title(name_of(left) + " and " + name_of(right) + " (" + clause_of(reason) + ')');
    for (const ComparedField& field : compared.fields) {
        if (field.verdict == Verdict::equal) {
            append_row(lines, "= ", field.label, field.left->mark_up_text(*generator_));
        } else if (!field.right) {
            append_row(lines, "< ", field.label + (" (" + words_of(field.verdict) + ')'),
                       field.left->mark_up_text(*generator_));
        } else if (!field.left) {
            append_row(lines, "> ", field.label + (" (" + words_of(field.verdict) + ')'),
                       field.right->mark_up_text(*generator_));
        } else {
            append_differences(lines, field);
        }
    }
    return {lines + target_.layout.foot};
}

/// The two texts of a field, and why they differ.
void LineLayout::append_differences(std::string& lines, const ComparedField& field) const {
    const bool is_equivalent = field.verdict == Verdict::equivalent;
    append_row(lines, is_equivalent ? "~ " : "< ", field.label,
               marks_.marked(*field.left, field.findings, DifferenceMarks::left)
                   .mark_up_text(*generator_));
    append_row(lines, is_equivalent ? "~ " : "> ", field.label,
               marks_.marked(*field.right, field.findings, DifferenceMarks::right)
                   .mark_up_text(*generator_));
    append_row(lines, "  ", "why", written(reasons_of_difference(field)));
}

LaidOutPart LineLayout::only(const Side& entry, Verdict verdict) {
    // Where entries end with a foot, lines that follow each other would be one paragraph.
    const char* const end = *target_.layout.foot ? "\n\n" : "\n";
    return {written(name_of(entry) + ": " + words_of(verdict)) + end};
}

std::string LineLayout::written(const std::string& text) const {
    if (!target_.escapes) return text;
    return TextItem(make_handle<InputTextStyleFinder>(), text).mark_up_text(*generator_);
}

std::string LineLayout::title(const std::string& text) const {
    return target_.layout.before_title + written(text) + target_.layout.behind_title;
}

void LineLayout::append_row(std::string& lines, const char* sign, const std::string& label,
                            const std::string& mark_up) const {
    const bool is_plain = *sign == ' ' && std::all_of(label.begin(), label.end(), is_letter);
    lines += target_.layout.before_row;
    lines += is_plain ? sign + label : written(sign + label);
    lines.append(target_.layout.behind_label).append(mark_up).push_back('\n');
}

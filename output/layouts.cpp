#include "output/layouts.h"

#include "output/JsonLayout.h"
#include "output/LineLayout.h"
#include "output/PageLayout.h"

std::span<const Output> show_outputs() {
    static const std::vector<Output> outputs = outputs_with(
        "json", "labels, groups, texts, mark-up and runs of uniform style of each entry (.json)");
    return outputs;
}

std::unique_ptr<EntryLayout> make_entry_layout(const Output& output, bool own_file) {
    if (!output.target) return std::make_unique<JsonLayout>();
    if (own_file) return make_comparison_layout(*output.target);
    return std::make_unique<LineLayout>(*output.target);
}

std::unique_ptr<ComparisonLayout> make_comparison_layout(const RichTextTarget& target) {
    if (target.use == RichTextTarget::Use::page) return std::make_unique<PageLayout>();
    return std::make_unique<LineLayout>(target);
}

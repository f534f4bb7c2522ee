#include "tasks/EntryComparison.h"

#include <exception>
#include <utility>

#include "tasks/Highlighting.h"

namespace {

/// One side of a field, and whether all of it matches the other side.
struct Side {
    std::optional<TextItem> item;
    bool matched = false;

    Side(const SearchSettings& settings, const FieldText& text, const FieldText& other) {
        if (text.text.empty()) return;
        const Highlighting highlighting(*text.source, text.search->make_comparison(settings),
                                        other.shown());
        item.emplace(highlighting.finder(), text.text);
        matched = highlighting.search().matched();
    }
};

}  // namespace

EntryComparison::EntryComparison(const CifEntry& left, const CifEntry& right,
                                 std::span<const Field> wanted, const SearchSettings& settings) {
    for (const Field& field : wanted) {
        const FieldText left_text = text_of(left, field), right_text = text_of(right, field);
        if (left_text.text.empty() && right_text.text.empty()) continue;
        try {
            Side left_side(settings, left_text, right_text);
            Side right_side(settings, right_text, left_text);
            const bool equal =
                left_text.text == right_text.text || (left_side.matched && right_side.matched);
            same = same && equal;
            fields.push_back(
                {field.label, std::move(left_side.item), std::move(right_side.item), equal});
        } catch (const std::exception& error) {
            Problem& problem = problems.emplace_back();
            problem.block = std::string(left.block.name());
            problem.other_block = std::string(right.block.name());
            problem.item = field.label;
            problem.what = error.what();
        }
    }
}

#include "tasks/EntryComparison.h"

#include <exception>
#include <utility>

#include "suppliers/FieldTextSupplier.h"
#include "tasks/Field.h"
#include "tasks/Highlighting.h"

namespace {

/// One side of a field, and whether all of it matches the other side.
struct Side {
    std::optional<TextItem> item;
    bool matched = false;

    Side(const Field& field, const SearchSettings& settings, const std::string& text,
         const std::string& other) {
        if (text.empty()) return;
        const Highlighting highlighting(*field.source, field.search->make_comparison(settings),
                                        other);
        item.emplace(highlighting.finder(), text);
        matched = highlighting.search().matched();
    }
};

}  // namespace

EntryComparison::EntryComparison(const CifEntry& left, const CifEntry& right,
                                 std::span<const LMRFieldNames::TextID> ids,
                                 const SearchSettings& settings) {
    for (const LMRFieldNames::TextID id : ids) {
        const FieldTextSupplier supplier(id);
        const std::string left_text = supplier.text(left.entry);
        const std::string right_text = supplier.text(right.entry);
        if (left_text.empty() && right_text.empty()) continue;
        const char* const label = LMRFieldNames::text(id);
        try {
            const Field field = field_of(id);
            Side left_side(field, settings, left_text, right_text);
            Side right_side(field, settings, right_text, left_text);
            const bool equal = left_text == right_text || (left_side.matched && right_side.matched);
            same = same && equal;
            fields.push_back({label, std::move(left_side.item), std::move(right_side.item), equal});
        } catch (const std::exception& error) {
            Problem& problem = problems.emplace_back();
            problem.block = std::string(left.block.name());
            problem.other_block = std::string(right.block.name());
            problem.item = label;
            problem.what = error.what();
        }
    }
}

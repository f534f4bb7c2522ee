#include <algorithm>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>

#include "checks/CheckedEntry.h"
#include "checks/add_finding.h"
#include "checks/misspelt_tag.h"
#include "entries/cif_text.h"

namespace {

class FileCheck {
public:
    FileCheck(const CifDocument& document, FoundFaults& findings)
        : document_(document), findings_(findings) {}

    void check_block(std::size_t index) {
        const std::string_view name = document_.name_of(index);
        const char* const heading = document_.heading_of(index);
        const bool is_new = names_.insert(in_lower_case(name)).second;
        if (!is_new) add("block-twice", heading, std::string(name));
        const CifBlock block = document_.block(index);
        const CifBlock::Items items = document_.items(index);
        if (items.empty()) add("block-empty", heading, "");
        for (const CifItem* repeated : block.repetitions()) note_repetition(block, *repeated);
        repaired_.clear();
        const char* loop = nullptr;
        for (const CifItem* item : items) {
            check_tag(block, *item);
            if (item->size() == 0 && item->origin() != loop) add("loop-empty", *item);
            loop = item->origin();
            if (item->size() == 1 && (*item)[0].raw.empty()) note_missing_value(*item);
        }
    }

private:
    CheckFinding& add(const char* code, const char* place, std::string found) {
        return add_finding(findings_, document_, code, place, std::move(found));
    }

    CheckFinding& add(const char* code, const CifItem& item) {
        CheckFinding& finding = add(code, item.tag().data(), "");
        finding.problem.item = in_lower_case(item.tag());
        return finding;
    }

    void note_repetition(const CifBlock& block, const CifItem& item) {
        CheckFinding& finding = add("item-twice", item);
        if (item.size() > 0) finding.problem.found = item[0].content();
        const CifItem* const first = block.find(item.tag());
        if (!first || first == &item) return;
        finding.problem.expected = "only the one in line ";
        finding.problem.expected += std::to_string(document_.line_of(first->tag().data()));
    }

    void note_missing_value(const CifItem& item) {
        add("value-missing", item).repair = splice_of(document_, item[0].raw, " ?");
    }

    void check_tag(const CifBlock& block, const CifItem& item) {
        const std::optional<std::string> known = known_tag_for(item.tag());
        if (!known) return;
        CheckFinding& finding = add("tag-misspelt", item);
        finding.problem.found = item.tag();
        finding.problem.item.clear();
        finding.problem.expected = *known;
        std::string repaired = in_lower_case(*known);
        if (block.find(repaired)) return;  // it would be there twice
        std::replace(repaired.begin(), repaired.end(), '.', '_');
        if (!repaired_.insert(std::move(repaired)).second) return;
        finding.repair = splice_of(document_, item.tag(), *known);
    }

    const CifDocument& document_;
    FoundFaults& findings_;
    std::unordered_set<std::string> names_;
    std::unordered_set<std::string> repaired_;  // tags that the block will have
};

}  // namespace

void check_file(const CifDocument& document, FoundFaults& findings) {
    FileCheck check(document, findings);
    for (std::size_t block = 0; block < document.blocks(); ++block) check.check_block(block);
}

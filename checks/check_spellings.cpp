#include "checks/check_spellings.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "checks/add_finding.h"
#include "comparison/folding.h"
#include "entries/CodedText.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

/// How a name was spelt first, and in which block.
struct Spelling {
    std::string text;
    std::size_t block;
};

class SpellingCheck {
public:
    SpellingCheck(const CifDocument& document, FoundFaults& findings)
        : document_(document), findings_(findings) {}

    void check(std::size_t block, const CifItem& item) {
        for (std::size_t row = 0; row < item.size(); ++row) {
            std::string text = one_line(item[row].text(), true);
            if (text.empty()) continue;
            std::string key = folded(shown(text), Folding());
            const auto [first, is_new] =
                spellings_.try_emplace(std::move(key), Spelling{text, block});
            const Spelling& spelling = first->second;
            if (is_new || spelling.block == block || shown(spelling.text) == shown(text)) continue;
            add(item, row, std::move(text), spelling);
        }
    }

private:
    static std::string shown(const std::string& text) {
        return CodedText::may_hold_codes(text) ? CodedText(text).unicode() : text;
    }

    void add(const CifItem& item, std::size_t row, std::string text, const Spelling& spelling) {
        std::string expected = "'" + spelling.text + "' as in data_";
        expected += document_.name_of(spelling.block);
        CheckFinding& finding =
            add_finding(findings_, document_, "spelt-otherwise", item[row].raw.data(),
                        std::move(text), std::move(expected));
        finding.problem.item = in_lower_case(item.tag());
    }

    const CifDocument& document_;
    FoundFaults& findings_;
    std::unordered_map<std::string, Spelling> spellings_;
};

}  // namespace

void check_spellings(const CifDocument& document, FoundFaults& findings) {
    if (document.blocks() < 2) return;
    SpellingCheck check(document, findings);
    for (std::size_t index = 0; index < document.blocks(); ++index) {
        const CifBlock block = document.block(index);
        for (const std::string_view tag : {cif_tags::author, cif_tags::name}) {
            if (const CifItem* const item = block.find(tag)) check.check(index, *item);
        }
        for (const std::string_view tag : cif_tags::synonyms) {
            if (const CifItem* const item = block.find(tag)) check.check(index, *item);
        }
    }
}

#include "entries/further_fields.h"

#include <utility>

namespace {

constexpr std::string_view title[] = {"_publ_section_title"};
constexpr std::string_view doi[] = {"_journal_paper_doi", "_journal_article_doi"};

template <const auto& tags>
std::string first_text(BlockReader& block) {
    return block.first_text(tags);
}

constexpr FurtherField rows[] = {
    {"Title", "cif-text", "substring", first_text<title>},
    {"DOI", "plain", "exact", first_text<doi>},
};

}  // namespace

std::span<const FurtherField> further_fields() { return rows; }

void read_further_fields(BlockReader& block) {
    for (const FurtherField& row : rows) {
        std::string text = row.text_of(block);
        if (!text.empty()) block.add_text({row.label, row.source, std::move(text)});
    }
}

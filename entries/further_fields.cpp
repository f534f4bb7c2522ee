#include "entries/further_fields.h"

#include <utility>

#include "entries/field_items.h"

namespace {

constexpr FurtherField rows[] = {
    {"Title", "cif-text", "substring", "text"},
    {"DOI", "plain", "exact", "exact"},
    {"Moiety Formula", "cif-formula", "substring", "formula"},
    {"Formula Weight", "plain", "numeric", "numbers"},
    {"Measured Density", "plain", "numeric", "numbers"},
    {"F(000)", "plain", "numeric", "numbers"},
    {"Crystal Size", "plain", "numeric", "numbers"},
    {"Wavelength", "plain", "numeric", "numbers"},
    {"Absorption Coefficient", "plain", "numeric", "numbers"},
    {"Absorption Correction", "plain", "substring", "text"},
    {"Theta Range", "plain", "numeric", "numbers"},
    {"Reflections", "plain", "numeric", "numbers"},
    {"wR-Factor (%)", "plain", "numeric", "numbers"},
    {"Goodness Of Fit", "plain", "numeric", "numbers"},
};

}  // namespace

std::span<const FurtherField> further_fields() { return rows; }

void read_further_fields(BlockReader& block) {
    for (const FurtherField& row : rows) {
        std::string text = text_of(block, *items_of(row.label));
        if (!text.empty()) block.add_text({row.label, row.source, std::move(text)});
    }
}

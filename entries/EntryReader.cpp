#include "entries/EntryReader.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "entries/BlockReader.h"
#include "entries/cif_text.h"
#include "entries/further_fields.h"

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

/// Whether the block is that of a crystal.
bool has_crystal(const CifBlock& block) {
    constexpr std::string_view tags[] = {"_cell_length_a", "_cell_length_b", "_cell_length_c",
                                         "_atom_site_label", "_atom_site_fract_x"};
    return std::any_of(std::begin(tags), std::end(tags), [&](std::string_view tag) {
        const CifItem* const item = block.find(tag);
        return item && item->has_text();
    });
}

/// Whether the block tells of an article, and not of one structure.
bool is_common(const CifBlock& block) {
    constexpr std::string_view of_structures[] = {"_chemical_formula_", "_exptl_",    "_refine_",
                                                  "_diffrn_",           "_symmetry_", "_pd_",
                                                  "_space_group_"};
    if (!block.has_any("_publ_") && !block.has_any("_journal_")) return false;
    return in_lower_case(block.name()) == "global" ||
           std::none_of(std::begin(of_structures), std::end(of_structures),
                        [&](std::string_view prefix) { return block.has_any(prefix); });
}

}  // namespace

EntryReader::EntryReader(std::string_view cif) : document_(cif) {
    if (document_.blocks() > 1) find_entries();
    if (!entries_.empty()) return;
    common_.clear();
    for (std::size_t i = 0; i < document_.blocks(); ++i) entries_.push_back({i, none});
}

/// Finds none where no block is that of a crystal.
void EntryReader::find_entries() {
    bool any_crystal = false;
    std::vector<std::pair<std::size_t, std::size_t>> runs;
    for (std::size_t i = 0; i < document_.blocks(); ++i) {
        const CifBlock block = document_.block(i);
        const bool crystal = has_crystal(block);
        any_crystal = any_crystal || crystal;
        if (crystal || !is_common(block)) {
            entries_.push_back({i, runs.empty() ? 0 : runs.size() - 1});
        } else if (!runs.empty() && runs.back().second == i) {
            ++runs.back().second;
        } else {
            runs.emplace_back(i, i + 1);
        }
    }
    if (!any_crystal) entries_.clear();
    for (const auto& [first, last] : runs) {
        common_.push_back({first, last, document_.common_block(first, last)});
        common_.back().block.sort_by_tags();  // each entry will ask it
    }
    std::size_t last_common = none;
    for (Place& entry : entries_) {
        entry.tells_of_common = entry.common != last_common;
        last_common = entry.common;
    }
}

const CifBlock* EntryReader::common_block_of(std::size_t index) const {
    const std::size_t common = entries_[index].common;
    return common < common_.size() ? &common_[common].block : nullptr;
}

CifEntry EntryReader::operator[](std::size_t index) const {
    const Place& place = entries_[index];
    const Common* const common = place.common < common_.size() ? &common_[place.common] : nullptr;
    BlockReader block(document_, place.block, common ? &common->block : nullptr,
                      place.tells_of_common);
    const auto entry = make_handle<CrystalStructureDatabaseEntry>();
    read_texts(block, *entry);
    read_melting_point(block, *entry);
    read_names(block, *entry);
    read_publication(block, *entry);
    read_dates(block, *entry);
    read_numbers_elsewhere(block, *entry);
    read_cell(block, *entry);
    read_space_group(block, *entry);
    read_measurements(block, *entry);
    read_atoms(block, *entry);
    read_bonds(block, *entry);
    read_further_fields(block);
    const auto note_doubts = [&](std::size_t index_of_block) {
        for (const CifDocument::Doubt& doubt : document_.doubts(index_of_block)) {
            block.add_block_problem(doubt.place, doubt.code, doubt.what).level =
                Problem::Level::warning;
        }
    };
    for (std::size_t i = common ? common->first : 0;
         common && place.tells_of_common && i < common->last; ++i) {
        note_doubts(i);
    }
    note_doubts(place.block);
    block.note_repetitions();
    std::vector<Problem> problems = block.take_problems();
    std::stable_sort(problems.begin(), problems.end(),
                     [](const Problem& a, const Problem& b) { return a.line < b.line; });
    return {block.block(), entry, block.take_texts(), std::move(problems)};
}

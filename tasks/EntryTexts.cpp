#include "tasks/EntryTexts.h"

#include <utility>

EntryTexts::EntryTexts(std::string file_name, const CifEntry& entry, std::span<const Field> wanted)
    : file(std::move(file_name)),
      block(entry.block.name()),
      identifier(entry.entry->identifier),
      formula(entry.entry->chemical_info->formula),
      name(entry.entry->chemical_info->compound_name),
      cell(entry.entry->crystal_info->reduced_cell) {
    texts.reserve(wanted.size());
    for (const Field& field : wanted) texts.push_back(text_of(entry, field));
}

#include "entries/EntryReader.h"

#include "entries/BlockReader.h"
#include "entries/further_fields.h"

CifEntry EntryReader::operator[](std::size_t index) const {
    BlockReader block(document_, document_.block(index));
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
    for (const CifDocument::Doubt& doubt : document_.doubts(index)) {
        block.add_block_problem(doubt.place, doubt.what).level = Problem::Level::warning;
    }
    block.note_repetitions();
    return {block.block(), entry, block.take_texts(), block.take_problems()};
}

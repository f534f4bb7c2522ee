#include <gemmi/symmetry.hpp>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/space_group_symbol.h"
#include "entries/symmetry_operations.h"
#include "fields/LMRFieldNames.h"

namespace {

using Entry = CrystalStructureDatabaseEntry;
Operations listed_operations(BlockReader& block, const CifItem* item) {
    if (!item) return {};
    if (item->size() > most_operations) {
        block.add_problem(*item, "too-many-operations",
                          std::to_string(item->size()) + " operations, expected up to " +
                              std::to_string(most_operations));
        return {};
    }
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < item->size(); ++row) texts.push_back((*item)[row].text());
    return operations_of_list(texts);
}

bool is_number_of_group(const UncertainValue& number) {
    return number.value >= 1 && number.value <= 230;
}

/// What the items of a block say of its space group, and whether they say the same.
class SpaceGroupReader {
public:
    SpaceGroupReader(BlockReader& block, const std::optional<Cell>& cell)
        : block_(block),
          alpha_(cell ? cell->alpha.degrees.value : 0),
          gamma_(cell ? cell->gamma.degrees.value : 0) {}

    /// The group that the first item says of which it can be found, or null.
    const gemmi::SpaceGroup* find();
    /// Whether the items say the same, and which cell is meant.
    bool is_certain() const { return is_consistent_ && !axes_are_open(); }

private:
    struct Statement {
        const CifItem* item;
        Operations operations;
    };
    using Statements = std::vector<Statement>;

    void take(const char* subject, const SpaceGroupSetting& setting) {
        if (setting_.group || !setting.group) return;
        subject_ = subject;
        setting_ = setting;
    }
    void take_first(const char* subject, const Statements& statements) {
        if (setting_.group || statements.empty()) return;  // to find it costs
        take(subject, {group_of(statements[0].operations)});
    }
    /// Whether a setting of the group has just that Hall symbol, which saves finding operations.
    bool is_confirmed_by(std::string_view hall_symbol);
    Statements hall_symbols();
    Statements lists_of_operations();
    void compare_symbols();
    void compare_numbers();
    void compare(const char* code, const Statements& statements);
    void compare(const char* code, const CifItem& item, const Operations& operations);
    void warn(const char* code, const CifItem& item, const std::string& what);
    void warn(const char* code, const CifItem& item, const gemmi::SpaceGroup& other);
    /// Whether the axes of a rhombohedral group are not known.
    bool axes_are_open() const {
        return setting_.group && setting_.group->ext == 'H' && setting_.origin_is_open;
    }

    BlockReader& block_;
    double alpha_, gamma_;  // in degrees
    const char* subject_ = "";
    SpaceGroupSetting setting_;
    bool is_consistent_ = true;
};

bool SpaceGroupReader::is_confirmed_by(std::string_view hall_symbol) {
    if (!setting_.group || hall_symbol.empty()) return false;
    for (const gemmi::SpaceGroup& group : gemmi::spacegroup_tables::main) {
        if (hall_symbol != group.hall || !allows(setting_, group)) continue;
        setting_ = {&group};
        return true;
    }
    return false;
}

SpaceGroupReader::Statements SpaceGroupReader::hall_symbols() {
    Statements statements;
    for (const std::string_view tag : cif_tags::hall_symbol) {
        const BlockReader::Value value = block_.first_value(just(tag));
        const std::string symbol = one_line(value.text);
        if (is_confirmed_by(symbol)) continue;
        Operations operations = operations_of_hall_symbol(symbol);
        if (!operations.empty()) statements.push_back({value.item, std::move(operations)});
    }
    return statements;
}

SpaceGroupReader::Statements SpaceGroupReader::lists_of_operations() {
    Statements statements;
    for (const std::string_view tag : cif_tags::operations) {
        const CifItem* const item = block_.item(tag);
        Operations operations = listed_operations(block_, item);
        if (!operations.empty()) statements.push_back({item, std::move(operations)});
    }
    return statements;
}

const gemmi::SpaceGroup* SpaceGroupReader::find() {
    for (const std::string_view tag : cif_tags::symbol) {
        take("the symbol ", find_space_group(block_.first_text(just(tag)), alpha_, gamma_));
    }
    const Statements by_hall_symbol = hall_symbols();
    const Statements by_operations = lists_of_operations();
    take_first("the Hall symbol's group ", by_hall_symbol);
    take_first("the operations' group ", by_operations);
    const std::optional<UncertainValue> number =
        read_number(block_.first_text(cif_tags::group_number));
    if (!setting_.group && number && is_number_of_group(*number)) {
        const auto* const group = gemmi::find_spacegroup_by_number(static_cast<int>(number->value));
        take("the number's group ", find_space_group(group->hm, alpha_, gamma_));
    }
    if (!setting_.group) return nullptr;
    compare_symbols();
    compare("hall-symbol-differs", by_hall_symbol);
    compare("operations-differ", by_operations);
    compare_numbers();
    return setting_.group;
}

void SpaceGroupReader::compare_symbols() {
    for (const std::string_view tag : cif_tags::symbol) {
        const BlockReader::Value value = block_.first_value(just(tag));
        const SpaceGroupSetting other = find_space_group(one_line(value.text), alpha_, gamma_);
        if (!other.group || allows(setting_, *other.group)) continue;
        if (!allows(other, *setting_.group))
            warn("space-group-symbols-differ", *value.item, *other.group);
    }
}

void SpaceGroupReader::compare_numbers() {
    for (const std::string_view tag : cif_tags::group_number) {
        const BlockReader::Value value = block_.first_value(just(tag));
        const std::optional<UncertainValue> number = read_number(value.text);
        const int own = setting_.group->number;
        if (!number || !is_number_of_group(*number) || number->value == own) continue;
        warn("space-group-number-differs", *value.item,
             "is of number " + std::to_string(own) + ", not " + one_line(value.text));
    }
}

void SpaceGroupReader::compare(const char* code, const Statements& statements) {
    for (const Statement& statement : statements) {
        compare(code, *statement.item, statement.operations);
    }
}

void SpaceGroupReader::compare(const char* code, const CifItem& item,
                               const Operations& operations) {
    for (const gemmi::SpaceGroup& group : gemmi::spacegroup_tables::main) {
        if (!allows(setting_, group)) continue;
        if (group.operations().all_ops_sorted() != operations) continue;
        setting_ = {&group};  // it is what the symbol left open
        return;
    }
    const gemmi::SpaceGroup* const other = group_of(operations);
    const std::size_t own = static_cast<std::size_t>(setting_.group->operations().order());
    // One that is found in spite of a slip in a list has not all of its operations.
    if (other && other->operations().all_ops_sorted() == operations) {
        warn(code, item, *other);
    } else if (operations.size() != own) {
        warn(
            code, item,
            "has " + std::to_string(own) + " operations, not " + std::to_string(operations.size()));
    } else {
        warn(code, item, "has other operations");
    }
}

void SpaceGroupReader::warn(const char* code, const CifItem& item, const gemmi::SpaceGroup& other) {
    const int own = setting_.group->number;
    warn(code, item,
         own == other.number
             ? "is of another setting than " + other.xhm()
             : "is of number " + std::to_string(own) + ", not " + std::to_string(other.number));
}

void SpaceGroupReader::warn(const char* code, const CifItem& item, const std::string& what) {
    is_consistent_ = false;
    std::string text = subject_;
    text += name_of(setting_);
    text += ' ';
    text += what;
    Problem& problem = item.in_loop() ? block_.add_problem(item, code, text)
                                      : block_.add_problem({&item, ""}, code, text);
    problem.level = Problem::Level::warning;
}

}  // namespace

void read_space_group(BlockReader& block, Entry& entry) {
    CrystalInfo& info = *entry.crystal_info;
    SpaceGroupReader reader(block, info.cell);
    const gemmi::SpaceGroup* const group = reader.find();
    const BlockReader::Value symbol = block.first_value(cif_tags::symbol);
    if (group) {
        info.spacegroup = {group->hm, group->number, group->centring_type()};
    } else if (symbol) {
        info.spacegroup.symbol = one_line(symbol.text);
        block.add_problem(symbol, "unknown-space-group", "unknown space group");
    }
    if (info.cell && group) {
        info.reduced_cell = ReducedCell::of(*info.cell, info.spacegroup.centring);
    }
    const std::optional<UncertainValue> z = block.number(just(cif_tags::z));
    if (!z) return;
    info.z = z->value;
    // Where the items disagree, so may the numbers of operations.
    if (group && reader.is_certain()) {
        info.z_prime = z->value / group->operations().order();
    } else {
        block.add_text({LMRFieldNames::text(LMRFieldNames::z_zprime), "plain",
                        "Z: " + block.first_text(just(cif_tags::z))});
    }
}

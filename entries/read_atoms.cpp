#include <algorithm>
#include <gemmi/elem.hpp>
#include <limits>
#include <map>
#include <set>
#include <vector>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

/// The columns of a loop, by rows that all of them have.
template <std::size_t columns>
struct Rows {
    Rows(BlockReader& block, const std::string_view (&tags)[columns]) {
        size = std::numeric_limits<std::size_t>::max();
        for (std::size_t i = 0; i < columns; ++i) {
            items[i] = block.item(tags[i]);
            size = std::min(size, items[i] ? items[i]->size() : 0);
        }
    }

    std::string text(std::size_t row, std::size_t column) const {
        return (*items[column])[row].text();
    }

    const CifItem* items[columns];
    std::size_t size;
};

/// A column that the loop of the atoms may have besides.
class AtomColumn {
public:
    AtomColumn(BlockReader& block, std::string_view tag) : item_(block.item(tag)) {
        const CifItem* const labels = block.item(cif_tags::atom_label);
        if (item_ && (!labels || item_->origin() != labels->origin())) item_ = nullptr;
    }

    /// Empty where there is none.
    std::string text(std::size_t row) const { return item_ ? (*item_)[row].text() : ""; }
    /// Whether a single point says that there can be none.
    bool is_inapplicable(std::size_t row) const { return item_ && (*item_)[row].raw == "."; }

private:
    const CifItem* item_;
};

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Whether a type or label such as "C4+", "C12'" or "C1A" begins with the symbol of carbon. Two
/// letters are that of another element wherever there is one, in capitals too: labels such as "CL1"
/// and "CA" are no sure sign of carbon.
bool is_carbon(const std::string& symbol) {
    if (symbol.empty() || in_lower_case(symbol.substr(0, 1)) != "c") return false;
    if (symbol.size() == 1 || !is_letter(symbol[1])) return true;
    return gemmi::find_element(symbol.substr(0, 2).c_str()) == gemmi::El::X;
}

/// Which labels are those of carbon atoms.
class CarbonLabels {
public:
    explicit CarbonLabels(BlockReader& block) {
        const CifItem* const labels = block.item(cif_tags::atom_label);
        const AtomColumn types(block, cif_tags::atom_type);
        atoms_.reserve(labels ? labels->size() : 0);
        for (std::size_t row = 0; labels && row < labels->size(); ++row) {
            const std::string type = types.text(row);
            std::string label = (*labels)[row].text();
            const bool is_carbon_atom = is_carbon(type.empty() ? label : type);
            atoms_.push_back({std::move(label), is_carbon_atom});
        }
        std::stable_sort(atoms_.begin(), atoms_.end(), [](const Atom& a, const Atom& b) {
            return a.label < b.label;  // of several with one label the first counts
        });
    }

    /// What the atoms say, or else the label itself.
    bool contain(const std::string& label) const {
        const auto known = std::lower_bound(
            atoms_.begin(), atoms_.end(), label,
            [](const Atom& atom, const std::string& sought) { return atom.label < sought; });
        const bool is_known = known != atoms_.end() && known->label == label;
        return is_known ? known->is_carbon : is_carbon(label);
    }

private:
    struct Atom {
        std::string label;
        bool is_carbon;
    };

    std::vector<Atom> atoms_;
};

/// The atoms that have several positions.
class Disorder {
public:
    /// An atom in that group of an assembly, of which each has a position of its own.
    void add(const std::string& label, const std::string& assembly, const std::string& group) {
        if (atoms_++ < most_labels) labels_.push_back(label);
        // Those of a negative group have their other positions by symmetry.
        if (group.starts_with('-')) {
            by_symmetry_ = true;
        } else {
            std::set<std::string>& groups = groups_[assembly];
            groups.insert(group);
            positions_ = std::max(positions_, groups.size());
        }
    }

    /// "C3, C4 and 4 more atoms over 2 positions"; empty where all is in order.
    std::string in_words() const {
        if (atoms_ == 0) return "";
        std::string text = labels_[0];
        const std::size_t more = atoms_ - labels_.size();
        if (labels_.size() == most_labels) {
            text.append(more > 0 ? ", " : " and ").append(labels_[1]);
        }
        if (more > 0) text += " and " + std::to_string(more) + " more atom";
        if (more > 1) text += 's';
        if (positions_ > 1) return text + " over " + std::to_string(positions_) + " positions";
        return text +
               (by_symmetry_ ? " over positions related by symmetry" : ", one position given");
    }

private:
    static constexpr std::size_t most_labels = 2;

    std::vector<std::string> labels_;
    std::size_t atoms_ = 0;
    std::map<std::string, std::set<std::string>> groups_;  // by assembly
    std::size_t positions_ = 0;
    bool by_symmetry_ = false;
};

}  // namespace

void read_atoms(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    const Rows atoms(block, cif_tags::atom);
    const AtomColumn types(block, cif_tags::atom_type);
    const AtomColumn flags(block, cif_tags::atom_flag);
    const AtomColumn assemblies(block, cif_tags::disorder_assembly);
    const AtomColumn groups(block, cif_tags::disorder_group);
    Disorder disorder;
    for (std::size_t row = 0; row < atoms.size; ++row) {
        // Points such as the middle of a ring are no atoms.
        if (types.is_inapplicable(row) || in_lower_case(flags.text(row)) == "dum") continue;
        const std::string label = atoms.text(row, 0);
        const std::string group = groups.text(row);
        if (!group.empty() && group != "0") disorder.add(label, assemblies.text(row), group);
        const auto x = read_number(atoms.text(row, 1));
        const auto y = read_number(atoms.text(row, 2));
        const auto z = read_number(atoms.text(row, 3));
        if (!x || !y || !z) continue;  // known to be there, but not where
        entry.crystal_info->molecules.atoms.push_back({label, x->value, y->value, z->value});
    }
    entry.crystal_info->disorder = disorder.in_words();
}

void read_bonds(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    const Rows bonds(block, cif_tags::bond);
    if (bonds.size == 0) return;
    const CarbonLabels carbon(block);
    double sum = 0;
    unsigned int count = 0;
    for (std::size_t row = 0; row < bonds.size; ++row) {
        if (!carbon.contain(bonds.text(row, 0)) || !carbon.contain(bonds.text(row, 1))) continue;
        const std::optional<UncertainValue> length = read_number(bonds.text(row, 2));
        if (!length || length->uncertainty == 0) continue;
        sum += length->uncertainty;
        ++count;
    }
    if (count > 0) entry.experimental_info->average_sigma = UncertainValue{sum / count, 0, 4};
}

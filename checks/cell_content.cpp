#include "checks/cell_content.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/symmetry_operations.h"
#include "text/internal/ascii.h"

namespace {

using gemmi::El;
constexpr std::string_view occupancy_tag = "_atom_site_occupancy";
constexpr std::size_t axes = 3;

/// Where a site is.
struct Place {
    std::array<double, axes> xyz{};  // fractional
    int decimals = 0;                // with which these are given
};

std::string_view letters_of(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && is_ascii_letter(text[end])) ++end;
    return text.substr(0, end);
}

/// The element of a type such as "C", "CU2+" or "Siva"; X of one such as "Si/Al", and where it may
/// be another than the type says: "HO" for hydrogen, "W" for water.
El element_of_type(std::string_view type, const ElementTotals& sum) {
    const std::string_view letters = letters_of(type);
    if (type.find_first_not_of("0123456789+-.", letters.size()) != std::string_view::npos) {
        return El::X;
    }
    const El both = letters.size() > 1 ? element_of(letters.substr(0, 2)) : El::X;
    const El first = element_of(letters.substr(0, 1));
    if (both != El::X) {
        const bool may_be_first = !sum.has(both) && sum.has(first) && letters[1] < 'a';
        return may_be_first ? El::X : both;
    }
    return first == El::W && !sum.has(first) ? El::X : first;
}

/// The element of a label such as "CA1", of those that the formula has.
El element_of_label(std::string_view label, const ElementTotals& sum) {
    const std::string_view letters = letters_of(label).substr(0, 2);
    const El both = letters.size() > 1 ? element_of(letters) : El::X;
    const El first = element_of(letters.substr(0, 1));
    const bool may_be_both = both != El::X && sum.has(both);
    const bool may_be_first = first != El::X && sum.has(first);
    if (may_be_both == may_be_first) return El::X;
    return may_be_both ? both : first;
}

/// The operations of an entry's group, as they are listed or by its Hall symbol.
Operations operations_of(const CheckedEntry& entry) {
    for (const std::string_view tag : cif_tags::operations) {
        const CifItem* const item = entry.item(tag);
        if (!item || item->size() > most_operations) continue;
        std::vector<std::string> texts;
        texts.reserve(item->size());
        for (std::size_t row = 0; row < item->size(); ++row) texts.push_back((*item)[row].text());
        Operations operations = operations_of_list(texts);
        if (!operations.empty()) return operations;
    }
    for (const std::string_view tag : cif_tags::hall_symbol) {
        Operations operations = operations_of_hall_symbol(entry.first(tag).text);
        if (!operations.empty()) return operations;
    }
    return {};
}

/// How often symmetry repeats a place.
class Symmetry {
public:
    Symmetry(const CheckedEntry& entry, const Cell& cell)
        : operations_(operations_of(entry)), edges_{cell.a.value, cell.b.value, cell.c.value} {}

    bool is_known() const { return !operations_.empty(); }
    /// The number of operations, and of those that leave the place where it is.
    /// @{
    std::size_t size() const { return operations_.size(); }
    std::size_t order_of(const Place& place) const {
        const double rounding = 1.5 * std::pow(10, -place.decimals);
        const auto stays = [&](const gemmi::Op& operation) {
            const std::array<double, axes> image = operation.apply_to_xyz(place.xyz);
            for (std::size_t i = 0; i < axes; ++i) {
                const double shift = image[i] - place.xyz[i];
                const double distance = std::abs(shift - std::round(shift)) * edges_[i];
                if (distance > std::clamp(rounding * edges_[i], nearest, furthest)) return false;
            }
            return true;
        };
        return static_cast<std::size_t>(
            std::count_if(operations_.begin(), operations_.end(), stays));
    }
    /// @}

private:
    // In Å, as far as images of one place may be rounded; disordered atoms are further away.
    static constexpr double nearest = 0.05, furthest = 0.2;

    Operations operations_;
    std::array<double, axes> edges_;
};

/// The columns of the loop of atoms.
class Sites {
public:
    explicit Sites(const CheckedEntry& entry)
        : labels_(entry.item(cif_tags::atom_label)),
          types_(column(entry, cif_tags::atom_type)),
          flags_(column(entry, cif_tags::atom_flag)),
          occupancies_(column(entry, occupancy_tag)),
          groups_(column(entry, cif_tags::disorder_group)) {
        for (std::size_t i = 0; i < axes; ++i) places_[i] = column(entry, cif_tags::atom[i + 1]);
    }

    /// In rows; 0 where there are no coordinates.
    std::size_t size() const {
        const bool has_places = std::all_of(places_.begin(), places_.end(),
                                            [](const CifItem* item) { return item != nullptr; });
        if (!labels_ || !has_places) return 0;
        std::size_t rows = labels_->size();
        for (const CifItem* const item : {types_, flags_, occupancies_, groups_}) {
            if (item) rows = std::min(rows, item->size());
        }
        for (const CifItem* const item : places_) rows = std::min(rows, item->size());
        return rows;
    }
    /// Whether it is a point such as the middle of a ring.
    bool is_no_atom(std::size_t row) const {
        if (types_ && (*types_)[row].raw == ".") return true;
        return flags_ && in_lower_case((*flags_)[row].text()) == "dum";
    }
    El element(std::size_t row, const ElementTotals& sum) const {
        const std::string type = types_ ? (*types_)[row].text() : "";
        return type.empty() ? element_of_label((*labels_)[row].text(), sum)
                            : element_of_type(type, sum);
    }
    /// 1 where none is given, nothing where it is none or must be given.
    std::optional<UncertainValue> occupancy(std::size_t row) const {
        const std::string text = occupancies_ ? (*occupancies_)[row].text() : "";
        if (!text.empty()) return read_number(text);
        const std::string group = groups_ ? (*groups_)[row].text() : "";
        if (!group.empty() && group != "0") return std::nullopt;
        return UncertainValue{1, 0, 0};
    }
    std::optional<Place> place(std::size_t row) const {
        Place place;
        for (std::size_t i = 0; i < axes; ++i) {
            const auto number = read_number((*places_[i])[row].text());
            if (!number) return std::nullopt;
            place.xyz[i] = number->value;
            place.decimals = std::max(place.decimals, number->decimals);
        }
        return place;
    }

private:
    const CifItem* column(const CheckedEntry& entry, std::string_view tag) const {
        const CifItem* const item = entry.item(tag);
        return item && labels_ && item->origin() == labels_->origin() ? item : nullptr;
    }

    const CifItem* labels_;
    const CifItem *types_, *flags_, *occupancies_, *groups_;
    std::array<const CifItem*, axes> places_{};
};

/// Adds an atom as often as it is in the cell.
void add(El element, const UncertainValue& occupancy, std::size_t operations, std::size_t order,
         CellContent& content) {
    constexpr double slack = 1.02;
    const double times = static_cast<double>(operations) / static_cast<double>(order);
    // Halves and quarters are exact; others of one place need not add up to the last digit.
    const bool is_exact = std::fmod(occupancy.value, 0.25) == 0;
    const double half_unit =
        is_exact
            ? 0
            : std::max(0.5 * std::pow(10, -std::max(occupancy.decimals, 0)), occupancy.uncertainty);
    const bool is_divided = occupancy.value * static_cast<double>(order) <= slack;
    const double factor = is_divided ? static_cast<double>(order) : 1;
    content.atoms.add(element, occupancy.value * times, half_unit * times);
    content.by_site_factors.add(element, occupancy.value * times * factor,
                                half_unit * times * factor);
}

}  // namespace

std::optional<CellContent> content_of_cell(const CheckedEntry& entry, const ElementTotals& sum) {
    const std::optional<Cell>& cell = entry.entry().entry->crystal_info->cell;
    const Sites sites(entry);
    const std::size_t size = sites.size();
    if (!cell || size == 0 || !(cell->volume() > 0)) return std::nullopt;
    const Symmetry symmetry(entry, *cell);
    if (!symmetry.is_known()) return std::nullopt;
    CellContent content;
    for (std::size_t row = 0; row < size; ++row) {
        if (sites.is_no_atom(row)) continue;
        const El element = sites.element(row, sum);
        const bool is_hydrogen = gemmi::is_hydrogen(element);
        const std::optional<UncertainValue> occupancy = sites.occupancy(row);
        const std::optional<Place> place = sites.place(row);
        if (!place && is_hydrogen) continue;  // it has not been located
        if (element == El::X || !occupancy || !place) return std::nullopt;
        const std::size_t order = symmetry.order_of(*place);
        if (order == 0) return std::nullopt;  // the identity is not among the operations
        content.has_hydrogen |= is_hydrogen;
        add(element, *occupancy, symmetry.size(), order, content);
    }
    return content;
}

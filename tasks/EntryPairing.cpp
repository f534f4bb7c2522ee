#include "tasks/EntryPairing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

#include "comparison/folding.h"
#include "entries/cif_text.h"
#include "tasks/composition.h"

namespace {

constexpr double nearness = 0.01;           // of edges and angles, relative
constexpr std::size_t most_looked_at = 50;  // in either direction

struct Row {
    const char* name;
    const char* clause;
};

constexpr Row rows[] = {
    {"named", "as named"},
    {"identifier", "same identifier"},
    {"block", "same name of the block"},
    {"cell-and-formula", "same cell and formula"},
    {"name", "same compound name"},
    {"only", "the only entries"},
};
static_assert(std::size(rows) == static_cast<std::size_t>(PairingReason::only) + 1);

using Cell = std::array<double, 6>;

Cell numbers_of(const ReducedCell& cell) {
    return {cell.a, cell.b, cell.c, cell.alpha, cell.beta, cell.gamma};
}

/// How far apart two cells are, summed up; none when it is too far.
std::optional<double> distance(const Cell& left, const Cell& right) {
    double sum = 0;
    for (std::size_t i = 0; i < left.size(); ++i) {
        const double apart = std::abs(left[i] - right[i]) / std::max(left[i], right[i]);
        if (!(apart <= nearness)) return std::nullopt;
        sum += apart;
    }
    return sum;
}

/// An entry's cell, and its place in its side.
struct PlacedCell {
    Cell cell;
    unsigned long place;
    bool is_free = true;

    friend bool operator<(const PlacedCell& a, const PlacedCell& b) {
        return std::tie(a.cell, a.place) < std::tie(b.cell, b.place);
    }
};

}  // namespace

const char* name_of(PairingReason reason) { return rows[static_cast<std::size_t>(reason)].name; }
const char* clause_of(PairingReason reason) {
    return rows[static_cast<std::size_t>(reason)].clause;
}

std::optional<EntryPair> EntryPairing::add(Side side, EntryTexts entry, const std::string& file) {
    const Side other = side == left ? right : left;
    const unsigned long place = count_[side]++;
    std::string block = in_lower_case(entry.block) + '\n' + file;
    const std::string identifier = entry.identifier.empty() ? '\n' + block : entry.identifier;
    const auto same = by_identifier_[other].find(identifier);
    if (same == by_identifier_[other].end()) {
        by_identifier_[side][identifier].push_back(place);
        waiting_[side].emplace(place, Waiting{std::move(entry), std::move(block)});
        return std::nullopt;
    }
    EntryTexts found = take(other, same->second.front());
    same->second.pop_front();
    if (same->second.empty()) by_identifier_[other].erase(same);
    if (side == right) std::swap(entry, found);
    return EntryPair{std::move(entry), std::move(found), PairingReason::identifier};
}

EntryPairing::Rest EntryPairing::finish() {
    for (const Side side : {left, right}) {
        by_identifier_[side].clear();
        is_found_[side].assign(count_[side], false);
    }
    const auto block_with_number = [](const Waiting& waiting) {
        return waiting.entry.identifier.empty() ? std::string() : waiting.block;
    };
    const auto block_alone = [](const Waiting& waiting) {
        return waiting.entry.identifier.empty() ? waiting.block : std::string();
    };
    const auto name = [](const Waiting& waiting) { return folded(waiting.entry.name, {}); };
    const auto any = [](const Waiting& /*waiting*/) { return std::string("any"); };
    pair_by(block_with_number, block_alone, PairingReason::block);
    pair_by(block_alone, block_with_number, PairingReason::block);
    pair_by_cells();
    pair_by(name, name, PairingReason::name);
    if (count_[left] == 1 && count_[right] == 1) pair_by(any, any, PairingReason::only);

    std::sort(found_.begin(), found_.end(),
              [](const Found& a, const Found& b) { return a.left < b.left; });
    Rest rest;
    for (const Found& found : std::exchange(found_, {})) {
        rest.pairs.push_back({take(left, found.left), take(right, found.right), found.reason});
    }
    for (auto& [place, waiting] : waiting_[left])
        rest.only_left.push_back(std::move(waiting.entry));
    for (auto& [place, waiting] : waiting_[right]) {
        rest.only_right.push_back(std::move(waiting.entry));
    }
    for (auto& waiting : waiting_) waiting.clear();
    return rest;
}

/// Pairs what waits and has equal keys, in turn; empty ones are none.
template <class LeftKey, class RightKey>
void EntryPairing::pair_by(LeftKey left_key, RightKey right_key, PairingReason reason) {
    std::unordered_map<std::string, std::deque<unsigned long>> lefts;
    for (const auto& [place, waiting] : waiting_[left]) {
        std::string key = is_found_[left][place] ? std::string() : left_key(waiting);
        if (!key.empty()) lefts[std::move(key)].push_back(place);
    }
    for (const auto& [place, waiting] : waiting_[right]) {
        if (is_found_[right][place]) continue;
        const auto same = lefts.find(right_key(waiting));
        if (same == lefts.end() || same->second.empty()) continue;
        note(same->second.front(), place, reason);
        same->second.pop_front();
    }
}

void EntryPairing::pair_by_cells() {
    std::map<std::string, std::array<Places, 2>> by_composition;
    for (const Side side : {left, right}) {
        for (const auto& [place, waiting] : waiting_[side]) {
            if (is_found_[side][place] || !waiting.entry.cell) continue;
            const std::string composition = composition_of(waiting.entry.formula);
            if (!composition.empty()) by_composition[composition][side].push_back(place);
        }
    }
    for (const auto& [composition, places] : by_composition) {
        if (!places[left].empty() && !places[right].empty()) {
            pair_near_cells(places[left], places[right]);
        }
    }
}

/// Pairs entries of one composition.
void EntryPairing::pair_near_cells(const Places& lefts, const Places& rights) {
    std::vector<PlacedCell> sorted[2];
    for (const Side side : {left, right}) {
        for (const unsigned long place : side == left ? lefts : rights) {
            sorted[side].push_back({numbers_of(*waiting_[side].at(place).entry.cell), place});
        }
        std::sort(sorted[side].begin(), sorted[side].end());
    }
    // Copies of an entry have equal cells: in turn, or each would look at the same few others.
    for (auto at = sorted[left].begin(), other = sorted[right].begin();
         at != sorted[left].end() && other != sorted[right].end();) {
        if (at->cell == other->cell) {
            note(at->place, other->place, PairingReason::cell_and_formula);
            at++->is_free = other++->is_free = false;
        } else {
            ++(at->cell < other->cell ? at : other);
        }
    }
    for (auto& cells : sorted) std::erase_if(cells, [](const PlacedCell& c) { return !c.is_free; });
    std::vector<std::tuple<double, unsigned long, unsigned long>> near;
    for (const PlacedCell& at : sorted[left]) {
        const auto middle = static_cast<std::size_t>(
            std::lower_bound(sorted[right].begin(), sorted[right].end(), at) -
            sorted[right].begin());
        const std::size_t end = std::min(middle + most_looked_at, sorted[right].size());
        for (std::size_t i = middle - std::min(middle, most_looked_at); i < end; ++i) {
            const std::optional<double> apart = distance(at.cell, sorted[right][i].cell);
            if (apart) near.emplace_back(*apart, at.place, sorted[right][i].place);
        }
    }
    std::sort(near.begin(), near.end());
    for (const auto& [apart, left_place, right_place] : near) {
        if (is_found_[left][left_place] || is_found_[right][right_place]) continue;
        note(left_place, right_place, PairingReason::cell_and_formula);
    }
}

void EntryPairing::note(unsigned long left_place, unsigned long right_place, PairingReason reason) {
    is_found_[left][left_place] = is_found_[right][right_place] = true;
    found_.push_back({left_place, right_place, reason});
}

EntryTexts EntryPairing::take(Side side, unsigned long place) {
    return std::move(waiting_[side].extract(place).mapped().entry);
}

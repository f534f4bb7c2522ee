#include "tasks/nearest_word.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "entries/cif_text.h"

namespace {

/// How many letters must be added, left out, changed or exchanged with their neighbour to make one
/// word of the other.
std::size_t distance(std::string_view a, std::string_view b) {
    // Rows of the table of distances between the fronts of both.
    std::vector<std::size_t> before(b.size() + 1), above(b.size() + 1), row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        before.swap(above);
        above.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool same = a[i - 1] == b[j - 1];
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

}  // namespace

std::string_view nearest_word(std::string_view word, std::span<const std::string_view> known) {
    const std::string lower = in_lower_case(word);
    std::size_t limit = word.size() / 3;
    std::string_view nearest;
    for (const std::string_view candidate : known) {
        const auto [shorter, longer] = std::minmax({word.size(), candidate.size()});
        if (longer - shorter > limit) continue;
        const std::size_t steps = distance(lower, in_lower_case(candidate));
        if (steps > limit || (steps == limit && !nearest.empty())) continue;
        nearest = candidate;
        limit = steps;
    }
    return nearest;
}

#include "comparison/longest_run.h"

#include <algorithm>
#include <tuple>

std::vector<bool> longest_ascending_run(const std::vector<std::size_t>& places,
                                        const std::vector<std::string_view>& names) {
    // By the length of the longest run that ends with them; on each level places descend.
    std::vector<std::vector<std::size_t>> levels;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto level = std::partition_point(
            levels.begin(), levels.end(),
            [&](const auto& indices) { return places[indices.back()] < places[i]; });
        if (level == levels.end()) {
            levels.push_back({i});
        } else {
            level->push_back(i);
        }
    }
    const auto is_better = [&](std::size_t a, std::size_t b) {
        const auto distance = [&](std::size_t i) {
            return places[i] < i ? i - places[i] : places[i] - i;
        };
        return std::tuple(distance(a), names[a]) < std::tuple(distance(b), names[b]);
    };
    std::vector<bool> run(places.size());
    std::size_t next = places.size();  // of the run
    for (std::size_t level = levels.size(); level-- > 0;) {
        std::size_t best = places.size();
        for (const std::size_t i : levels[level]) {
            const bool fits = next == places.size() || (i < next && places[i] < places[next]);
            if (fits && (best == places.size() || is_better(i, best))) best = i;
        }
        run[best] = true;
        next = best;
    }
    return run;
}

#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

/// Sorts a list that consists of ascending runs, as lists of styles do: O(n log r) for n elements
/// in r runs.
template <class T>
void sort_runs(std::vector<T>& list) {
    constexpr std::size_t few = 64;
    if (list.size() <= few) {
        std::sort(list.begin(), list.end());  // in place, which is quicker for so few
        return;
    }
    std::vector<std::ptrdiff_t> ends{0};
    while (list.begin() + ends.back() != list.end()) {
        const auto end = std::is_sorted_until(list.begin() + ends.back(), list.end());
        ends.push_back(end - list.begin());
    }
    for (std::size_t step = 1; step + 1 < ends.size(); step *= 2) {
        for (std::size_t run = 0; run + step + 1 < ends.size(); run += 2 * step) {
            const std::size_t last = std::min(run + 2 * step, ends.size() - 1);
            std::inplace_merge(list.begin() + ends[run], list.begin() + ends[run + step],
                               list.begin() + ends[last]);
        }
    }
}

/// What std::stable_sort() does, without the memory that it takes first, for lists that mostly have
/// one or two elements.
template <class T, class Less>
void sort_few(std::vector<T>& list, Less less) {
    if (list.size() < 2) return;
    constexpr std::size_t few = 8;
    if (list.size() > few) {
        std::stable_sort(list.begin(), list.end(), less);
        return;
    }
    for (auto next = list.begin() + 1; next != list.end(); ++next) {
        std::rotate(std::upper_bound(list.begin(), next, *next, less), next, next + 1);
    }
}

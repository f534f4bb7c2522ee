#include "comparison/KeyedPairing.h"

#include <algorithm>

namespace {

/// The places that have a key and no partner, by their keys and then in turn.
std::vector<std::size_t> free_places(const KeyedPairing::Keys& keys,
                                     const KeyedPairing::Partners& partners) {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < keys.size(); ++place) {
        if (!partners[place] && !keys[place].empty()) places.push_back(place);
    }
    std::stable_sort(places.begin(), places.end(),
                     [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return places;
}

}  // namespace

void KeyedPairing::pair(const Keys& left, const Keys& right) {
    const std::vector<std::size_t> on_left = free_places(left, partners_of_left_);
    const std::vector<std::size_t> on_right = free_places(right, partners_of_right_);
    auto l = on_left.begin();
    auto r = on_right.begin();
    while (l != on_left.end() && r != on_right.end()) {
        const int order = left[*l].compare(right[*r]);
        if (order == 0) {
            partners_of_left_[*l] = *r;
            partners_of_right_[*r] = *l;
        }
        if (order <= 0) ++l;
        if (order >= 0) ++r;
    }
}

std::vector<unsigned int> places_among(const std::vector<StringSlice>& ranges,
                                       const KeyedPairing::Partners& partners) {
    std::vector<unsigned int> places;
    unsigned int place = ranges.empty() ? 0 : ranges.front().from();
    for (const auto& partner : partners) {
        if (partner) place = ranges[*partner].to();
        places.push_back(place);
    }
    return places;
}

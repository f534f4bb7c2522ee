#include "text/StringSliceReducer.h"

#include <algorithm>

namespace {

bool ends_before(const StringSlice& a, const StringSlice& b) { return a.to() <= b.from(); }

}  // namespace

int StringSliceReducer::total_length() const {
    unsigned int length = 0;
    for (const StringSlice& slice : slices_) length += slice.length();
    return static_cast<int>(length);
}

void StringSliceReducer::add(const StringSlice& s) {
    if (s.empty()) return;
    const auto [first, last] = std::equal_range(slices_.begin(), slices_.end(), s, ends_before);
    if (first == last) {
        slices_.insert(first, s);
        return;
    }
    *first = s.combine(*first).combine(*(last - 1));
    slices_.erase(first + 1, last);
}

void StringSliceReducer::reduce() {
    std::erase_if(slices_, [](const StringSlice& slice) { return slice.empty(); });
    std::sort(slices_.begin(), slices_.end(),
              [](const StringSlice& a, const StringSlice& b) { return a.from() < b.from(); });
    auto kept = slices_.begin();
    for (const StringSlice& slice : slices_) {
        if (kept->overlaps(slice)) {
            *kept = kept->combine(slice);
        } else {
            *++kept = slice;
        }
    }
    if (kept != slices_.end()) slices_.erase(kept + 1, slices_.end());
}

#include "text/StringSliceReducer.h"

#include <algorithm>

const std::vector<StringSlice>& StringSliceReducer::slices() const {
    if (in_order_) return slices_;
    std::sort(slices_.begin(), slices_.end(),
              [](const StringSlice& a, const StringSlice& b) { return a.from() < b.from(); });
    auto merged = slices_.begin();
    for (const StringSlice& slice : slices_) {
        if (merged->overlaps(slice)) {
            *merged = merged->combine(slice);
        } else {
            *++merged = slice;
        }
    }
    slices_.erase(merged + 1, slices_.end());
    in_order_ = true;
    return slices_;
}

int StringSliceReducer::total_length() const {
    unsigned int length = 0;
    for (const StringSlice& slice : slices()) length += slice.length();
    return static_cast<int>(length);
}

void StringSliceReducer::add(const StringSlice& s) {
    if (s.empty()) return;
    if (!slices_.empty() && s.from() < slices_.back().to()) in_order_ = false;
    slices_.push_back(s);
}

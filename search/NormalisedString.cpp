#include "search/NormalisedString.h"

#include <algorithm>

#include "text/Position.h"

NormalisedString::NormalisedString(const StringNormalisationPolicy& policy, const std::string& raw)
    : normalised_(normalise(policy, raw)) {}

StringSlice NormalisedString::denormalise_slice(const StringSlice& slice) const {
    if (slice.empty()) return slice;
    const auto begin = differences_.begin();
    const auto end = differences_.end();
    const auto raw = [begin](unsigned int position, auto dropped_behind) {
        return position + to_position(static_cast<std::size_t>(dropped_behind - begin));
    };
    return {raw(slice.from(), std::upper_bound(begin, end, Difference{slice.from(), '\0'})),
            raw(slice.to(), std::lower_bound(begin, end, Difference{slice.to(), '\0'}))};
}

std::string NormalisedString::normalise(const StringNormalisationPolicy& policy,
                                        const std::string& raw) {
    std::string result(length_of(raw), '\0');
    unsigned int kept = 0;
    for (const char c : raw) {
        if (policy.drops(c)) {
            differences_.push_back({kept, policy.converted(c)});
        } else {
            result[kept++] = policy.converted(c);
        }
    }
    result.resize(kept);
    return result;
}

#include "search/NormalisedString.h"

#include <algorithm>

#include "text/Position.h"

NormalisedString::NormalisedString(const StringNormalisationPolicy& policy, const std::string& raw)
    : normalised_(normalise(policy, raw)) {}

StringSlice NormalisedString::denormalise_slice(const StringSlice& slice) const {
    if (slice.empty()) return slice;
    const auto begin = differences_.begin();
    const auto end = differences_.end();
    const auto before_from = std::upper_bound(begin, end, Difference{slice.from(), '\0'}) - begin;
    const auto before_to = std::lower_bound(begin, end, Difference{slice.to(), '\0'}) - begin;
    return {slice.from() + static_cast<unsigned int>(before_from),
            slice.to() + static_cast<unsigned int>(before_to)};
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

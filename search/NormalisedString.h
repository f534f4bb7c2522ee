#pragma once

#include <string>
#include <vector>

#include "search/StringNormalisationPolicy.h"
#include "text/StringSlice.h"

/// A raw string normalised by a policy, with the way back from its positions to the raw ones. The
/// raw string is not kept.
class NormalisedString {
public:
    /// One pass over `raw`; throws std::length_error for more than 4294967294 characters.
    NormalisedString(const StringNormalisationPolicy& policy, const std::string& raw);

    /// A copy of what the policy kept.
    std::string normalised() const { return normalised_; }

    /// The slice of the raw string from the first to the last character that was kept in `slice`,
    /// with what was dropped between; an empty slice stays as it is. O(log d) for d dropped
    /// characters. `slice` is not checked against the length.
    StringSlice denormalise_slice(const StringSlice& slice) const;
    /// Writes denormalise_slice() of each slice of [first, last) to `out`, which may be `first`.
    template <class Iterator, class Output>
    void denormalise_slices(Iterator first, Iterator last, Output out) const {
        for (; first != last; ++first, ++out) *out = denormalise_slice(*first);
    }

private:
    /// One dropped character.
    struct Difference {
        unsigned int position;  // how many characters were kept before it
        char character;

        bool operator<(const Difference& other) const { return position < other.position; }
    };

    std::string normalise(const StringNormalisationPolicy& policy, const std::string& raw);

    std::vector<Difference> differences_;  // ascending
    std::string normalised_;
};

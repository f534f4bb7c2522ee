#pragma once

#include <string>
#include <utility>
#include <vector>

#include "text/StringSlice.h"

/// The matches of two strings by their definition: every start in turn, and all matches before it.
inline std::pair<std::vector<StringSlice>, std::vector<StringSlice>> slow_matches(
    const std::string& a, const std::string& b, unsigned int min_length) {
    std::vector<StringSlice> in_a, in_b;
    for (unsigned int i = 0; i < a.size(); ++i) {
        for (unsigned int j = 0; j < b.size(); ++j) {
            unsigned int k = 0;
            while (i + k < a.size() && j + k < b.size() && a[i + k] == b[j + k]) ++k;
            for (std::size_t n = 0; n < in_a.size() && k >= min_length; ++n) {
                if (in_a[n].contains(i) && in_b[n].contains(j)) k = 0;
            }
            if (k < min_length) continue;
            in_a.emplace_back(i, i + k);
            in_b.emplace_back(j, j + k);
        }
    }
    return {in_a, in_b};
}

#pragma once

#include <string>
#include <vector>

#include "output/EntryLayout.h"
#include "tasks/EntryComparison.h"

/// How comparisons of entries are written, and entries by themselves.
class ComparisonLayout : public EntryLayout {
public:
    ~ComparisonLayout() override;

    /// One side of a comparison.
    struct Side {
        std::string file, block;
    };
    virtual std::string comparison(const Side& left, const Side& right,
                                   const std::vector<ComparedField>& fields) = 0;
};

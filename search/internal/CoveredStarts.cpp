#include "search/internal/CoveredStarts.h"

#include <algorithm>

namespace {

/// How many rows from `i` on a start is covered by a match that ends there.
struct RowsFrom {
    unsigned int i;
    unsigned int operator()(unsigned int a_end) const { return a_end > i ? a_end - i : 0; }
};

}  // namespace

unsigned int CoveredStarts::next_behind_cover(unsigned int i, unsigned int j) {
    Cover& cover = covers_[j];
    if (cover.behind_until <= i) {
        cover.behind = next(j);
        while (cover.behind < cover.b_end) cover.behind = next(cover.behind);
        cover.behind_until = a_ends_[j];
    }
    return cover.behind;
}

void CoveredStarts::cover(unsigned int a_end, unsigned int b_from, unsigned int b_end) {
    const unsigned int last = std::min(b_end, to_position(a_ends_.size()));
    for (unsigned int j = b_from; j < last; ++j) {
        if (a_ends_[j] >= a_end) continue;
        a_ends_[j] = a_end;
        covers_[j].b_end = b_end;
    }
}

void CoveredStarts::get_covers(unsigned int i, std::vector<unsigned int>& rows) const {
    rows.resize(a_ends_.size());
    std::transform(a_ends_.begin(), a_ends_.end(), rows.begin(), RowsFrom{i});
}

bool CoveredStarts::has_covers(unsigned int i, const std::vector<unsigned int>& rows) const {
    const RowsFrom rows_from{i};
    return std::equal(
        a_ends_.begin(), a_ends_.end(), rows.begin(), rows.end(),
        [&](unsigned int a_end, unsigned int known) { return rows_from(a_end) == known; });
}

void CoveredStarts::shift(unsigned int i, unsigned int rows) {
    for (unsigned int& a_end : a_ends_) {
        if (a_end > i) a_end += rows;
    }
    for (Cover& cover : covers_) cover.behind_until = 0;
}

#include "search/internal/CoveredStarts.h"

#include <algorithm>

unsigned int CoveredStarts::next_behind_cover(unsigned int i, unsigned int j) {
    Start& start = starts_[j];
    if (start.behind_until <= i) {
        start.behind = next(j);
        while (start.behind < start.b_end) start.behind = next(start.behind);
        start.behind_until = start.a_end;
    }
    return start.behind;
}

void CoveredStarts::cover(unsigned int a_end, unsigned int b_from, unsigned int b_end) {
    const unsigned int last = std::min(b_end, to_position(starts_.size()));
    for (unsigned int j = b_from; j < last; ++j) {
        if (starts_[j].a_end >= a_end) continue;
        starts_[j].a_end = a_end;
        starts_[j].b_end = b_end;
    }
}

void CoveredStarts::get_covers(unsigned int i, std::vector<unsigned int>& rows) const {
    rows.clear();
    rows.reserve(starts_.size());
    for (const Start& start : starts_) rows.push_back(start.rows_from(i));
}

bool CoveredStarts::has_covers(unsigned int i, const std::vector<unsigned int>& rows) const {
    return std::equal(starts_.begin(), starts_.end(), rows.begin(), rows.end(),
                      [i](const Start& start, unsigned int n) { return start.rows_from(i) == n; });
}

void CoveredStarts::shift(unsigned int i, unsigned int rows) {
    for (Start& start : starts_) {
        if (start.a_end > i) start.a_end += rows;
        start.behind_until = 0;
    }
}

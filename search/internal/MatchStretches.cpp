#include "search/internal/MatchStretches.h"

void MatchStretches::watch_seams() {
    seams_.resize(ends_.size());
    for (const StringSlice& slice : slices()) bridge(slice.from(), slice.to());
}

void MatchStretches::bridge(unsigned int from, unsigned int to) {
    for (unsigned int position = from + 1; position < to; ++position) {
        if (seams_[position] == Seam::expected) --expected_;
        seams_[position] = Seam::bridged;
    }
}

void MatchStretches::expect(unsigned int position) {
    if (seams_[position] != Seam::open) return;
    seams_[position] = Seam::expected;
    ++expected_;
}

std::vector<StringSlice> MatchStretches::slices() const {
    std::vector<StringSlice> slices;
    for (unsigned int from = 0; from < ends_.size(); ++from) {
        if (ends_[from] != 0) append(slices, from, ends_[from]);
    }
    return slices;
}

void MatchStretches::append(std::vector<StringSlice>& slices, unsigned int from, unsigned int to) {
    if (slices.empty() || from >= slices.back().to()) {
        slices.emplace_back(from, to);
    } else if (to > slices.back().to()) {
        slices.back() = StringSlice(slices.back().from(), to);
    }
}

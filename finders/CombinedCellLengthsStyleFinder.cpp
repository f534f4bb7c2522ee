#include "finders/CombinedCellLengthsStyleFinder.h"

#include "finders/internal/find_first.h"

namespace {

constexpr char bad_text[] = "CombinedCellLengthsStyleFinder bad text error";

}  // namespace

CombinedCellLengthsStyleFinder::~CombinedCellLengthsStyleFinder() = default;

void CombinedCellLengthsStyleFinder::bold(std::vector<StringSlice>& out) const {
    if (text().empty()) return;
    for (const unsigned int label : {a_, b_, c_}) out.emplace_back(label, label + 1);
}

void CombinedCellLengthsStyleFinder::calc_tag_positions() {
    a_ = find_first(text(), "a", bad_text);
    b_ = find_first(text(), "b", bad_text);
    c_ = find_first(text(), "c", bad_text);
}

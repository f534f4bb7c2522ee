#include "finders/CellAngleStyleFinder.h"

#include <stdexcept>

#include "finders/internal/find_first.h"

namespace {

constexpr char empty_text[] = "CellAngleStyleFinder empty text string error";
constexpr char bad_text[] = "CellAngleStyleFinder bad text string error";

}  // namespace

CellAngleStyleFinder::~CellAngleStyleFinder() = default;

void CellAngleStyleFinder::bold(std::vector<StringSlice>& out) const {
    for (const unsigned int label : {a_, b_, g_}) out.emplace_back(label, label + 1);
}

void CellAngleStyleFinder::greek(std::vector<GreekSlice>& out) const {
    out.emplace_back(a_, a_ + 1, TextItem::alpha);
    out.emplace_back(b_, b_ + 1, TextItem::beta);
    out.emplace_back(g_, g_ + 1, TextItem::gamma);
}

void CellAngleStyleFinder::calc_tag_positions() {
    if (text().empty()) throw std::runtime_error(empty_text);
    a_ = find_first(text(), "a", bad_text);
    b_ = find_first(text(), "b", bad_text);
    g_ = find_first(text(), "g", bad_text);
}

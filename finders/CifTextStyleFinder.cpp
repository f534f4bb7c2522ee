#include "finders/CifTextStyleFinder.h"

#include "finders/internal/CifTextParser.h"

namespace {

template <class Slice>
void append(std::vector<Slice>& out, const std::vector<Slice>& slices) {
    if (!slices.empty()) out.insert(out.end(), slices.begin(), slices.end());
}

}  // namespace

CifTextStyleFinder::~CifTextStyleFinder() = default;

void CifTextStyleFinder::bold(std::vector<StringSlice>& out) const { append(out, found_.bold); }
void CifTextStyleFinder::italic(std::vector<StringSlice>& out) const { append(out, found_.italic); }
void CifTextStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    append(out, found_.subscripts);
}
void CifTextStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    append(out, found_.superscripts);
}
void CifTextStyleFinder::invisible(std::vector<StringSlice>& out) const {
    append(out, found_.invisible);
}
void CifTextStyleFinder::replacement_text(std::vector<ReplacementTextSlice>& out) const {
    append(out, found_.replacements);
}
void CifTextStyleFinder::greek(std::vector<GreekSlice>& out) const { append(out, found_.greek); }

/// The lists keep their memory, for the texts that follow.
void CifTextStyleFinder::calc_tag_positions() {
    for (auto* const slices : {&found_.bold, &found_.italic, &found_.subscripts,
                               &found_.superscripts, &found_.invisible}) {
        slices->clear();
    }
    found_.greek.clear();
    found_.replacements.clear();
    found_.doubts.clear();
    CifTextParser(text(), found_).parse();
}

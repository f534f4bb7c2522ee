#include "MeltingPointStyleFinder.h"

#include "text/Position.h"

namespace {

constexpr std::string_view label = "Tm ";
constexpr std::string_view decomposes = "dec.";

/// Where `part` begins in `text`, from position `from` on.
std::optional<unsigned int> find(std::string_view text, std::string_view part, unsigned int from) {
    const std::size_t position = text.find(part, from);
    if (position == std::string_view::npos) return std::nullopt;
    return to_position(position);
}

}  // namespace

MeltingPointStyleFinder::~MeltingPointStyleFinder() = default;

void MeltingPointStyleFinder::calc_tag_positions() {
    label_ = hyphen_ = decomposes_ = std::nullopt;
    const auto point = find_melting_point(text());
    if (!point) return;
    if (text().starts_with(label)) label_ = 0;
    hyphen_ = point->hyphen;
    decomposes_ = find(text(), decomposes, point->slice.to());
}

void MeltingPointStyleFinder::italic(std::vector<StringSlice>& out) const {
    if (label_) out.emplace_back(*label_, *label_ + 1);
}

void MeltingPointStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    if (label_) out.emplace_back(*label_ + 1, *label_ + 2);
}

void MeltingPointStyleFinder::replacement_text(std::vector<ReplacementTextSlice>& out) const {
    if (hyphen_) out.emplace_back(*hyphen_, *hyphen_ + 1, "–");
}

void MeltingPointStyleFinder::color(std::vector<ColorSlice>& out) const {
    if (!decomposes_) return;
    out.emplace_back(*decomposes_, *decomposes_ + length_of(decomposes), TextItem::red);
}

#include "finders/TevoPublicationStyleFinder.h"

#include "finders/internal/find_first.h"
#include "suppliers/CombinedPublicationTagSupplier.h"
#include "text/Position.h"

namespace {

constexpr char bad_text[] = "TevoPublicationStyleFinder bad journal string error";

}  // namespace

TevoPublicationStyleFinder::TevoPublicationStyleFinder() {
    const CombinedPublicationTagSupplier tags;
    journal_ = {{tags.begin_jnl()}, {tags.end_jnl()}};
    volume_ = {{tags.begin_vol()}, {tags.end_vol()}};
    year_ = {{tags.begin_year()}, {tags.end_year()}};
    page_ = {{tags.begin_page()}, {tags.end_page()}};
}

TevoPublicationStyleFinder::~TevoPublicationStyleFinder() = default;

void TevoPublicationStyleFinder::bold(std::vector<StringSlice>& out) const {
    if (text().empty()) return;
    const StringSlice volume = volume_.enclosed();
    if (!volume.empty()) out.push_back(volume);
}

void TevoPublicationStyleFinder::italic(std::vector<StringSlice>& out) const {
    if (!text().empty()) out.push_back(journal_.enclosed());
}

void TevoPublicationStyleFinder::invisible(std::vector<StringSlice>& out) const {
    if (text().empty()) return;
    for (const Tag* tag :
         {&journal_.begin, &volume_.begin, &year_.begin, &page_.begin, &page_.end}) {
        out.emplace_back(tag->position, tag->end());
    }
}

void TevoPublicationStyleFinder::replacement_text(std::vector<ReplacementTextSlice>& out) const {
    if (text().empty()) return;
    const auto show = [&out](const Tag& tag, const char* as) {
        out.emplace_back(tag.position, tag.end(), as);
    };
    show(journal_.end, " (");
    show(volume_.end, ", ");
    show(year_.end, "), ");
}

void TevoPublicationStyleFinder::color(std::vector<ColorSlice>& /*out*/) const {}

void TevoPublicationStyleFinder::calc_tag_positions() {
    for (Part* part : {&journal_, &volume_, &year_, &page_}) {
        for (Tag* tag : {&part->begin, &part->end}) {
            tag->position = find_first(text(), tag->text, bad_text);
        }
    }
}

unsigned int TevoPublicationStyleFinder::Tag::end() const { return position + length_of(text); }

#include "tasks/TextReplacement.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "entries/pass_on_bad_alloc.h"
#include "tasks/SoughtText.h"
#include "text/Position.h"
#include "text/TextItem.h"

namespace {

std::vector<std::size_t> places_of(const std::string& part, std::string_view text) {
    std::vector<std::size_t> places;
    const SoughtText sought(part);
    SoughtText::Places found(sought, text);
    for (std::size_t at = found.next(); at != std::string_view::npos; at = found.next()) {
        places.push_back(at);
        found.pass_over();
    }
    return places;
}

std::string replaced(std::string_view text, const std::vector<std::size_t>& places,
                     std::size_t size, std::string_view by) {
    std::string result;
    std::size_t done = 0;
    for (const std::size_t place : places) {
        result.append(text.substr(done, place - done)).append(by);
        done = place + size;
    }
    return result.append(text.substr(done));
}

}  // namespace

TextReplacement::TextReplacement(const Source& kind, std::string text, std::string old)
    : kind_(kind),
      text_(std::move(text)),
      old_(std::move(old)),
      displayed_(TextItem(kind.make_finder(), text_)),
      places_(places_of(old_, displayed_.text())) {
    is_seen_ = !places_.empty();
    if (!is_seen_) places_ = places_of(old_, text_);
}

std::string TextReplacement::with(const std::string& by) const {
    if (!is_seen_) return replaced(text_, places_, old_.size(), by);
    const std::string wanted = replaced(displayed_.text(), places_, old_.size(), shown(by));
    for (const Hidden& hidden :
         {Hidden{false, false}, Hidden{false, true}, Hidden{true, false}, Hidden{true, true}}) {
        std::string result = with(by, hidden);
        if (shown(result) == wanted) return result;
    }
    throw std::invalid_argument("replacing '" + old_ + "' would change more of the text than that");
}

/// With what stands where the part is seen replaced.
std::string TextReplacement::with(const std::string& by, const Hidden& hidden) const {
    constexpr auto unit = DisplayedText::bytes;
    const unsigned int end = displayed_.size(unit);
    std::string result;
    std::size_t done = 0;
    for (const std::size_t place : places_) {
        const unsigned int from = to_position(place), to = to_position(place + old_.size());
        const StringSlice range = displayed_.in_item({from, to}, unit);
        std::size_t begin = range.from(), behind = range.to();
        if (hidden.before) begin = from == 0 ? 0 : displayed_.in_item({0, from}, unit).to();
        if (hidden.behind) {
            behind = to == end ? text_.size() : displayed_.in_item({to, end}, unit).from();
        }
        begin = std::max(begin, done);
        result.append(text_, done, begin - done).append(by);
        done = std::max(begin, behind);
    }
    return result.append(text_, done);
}

/// A part may be none of the kind, which its whole is: "9.5" of "a 9.5 b 8 c 7".
std::string TextReplacement::shown(const std::string& text) const {
    try {
        return DisplayedText(TextItem(kind_.make_finder(), text)).text();
    } catch (const std::exception& error) {
        pass_on_bad_alloc(error);
        return text;
    }
}

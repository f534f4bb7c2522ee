#include "finders/SpaceGroupStyleFinder.h"

#include <string_view>

#include "text/Position.h"

namespace {

constexpr std::string_view begin_bar = "<bar>";
constexpr std::string_view end_bar = "</bar>";
constexpr std::string_view begin_sub = "<sub>";
constexpr std::string_view end_sub = "</sub>";

/// Calls found(begin, end) with the positions of the tags of the bar, if there is one.
template <class Found>
void find_bar(std::string_view symbol, Found found) {
    const std::size_t begin = symbol.find(begin_bar);
    const std::size_t end = symbol.find(end_bar);
    if (begin == std::string_view::npos || end == std::string_view::npos) return;
    found(to_position(begin), to_position(end));
}

/// Calls found(begin, end) with the positions of the tags of each subscript.
template <class Found>
void find_subscripts(std::string_view symbol, Found found) {
    std::size_t begin = symbol.find(begin_sub);
    while (begin != std::string_view::npos) {
        const std::size_t end = symbol.find(end_sub, begin + begin_sub.size());
        if (end == std::string_view::npos) return;
        found(to_position(begin), to_position(end));
        begin = symbol.find(begin_sub, end + end_sub.size());
    }
}

/// Appends the range between two tags of the same lengths as those of a bar or a subscript.
struct AppendEnclosed {
    std::vector<StringSlice>& out;

    void operator()(unsigned int begin, unsigned int end) const {
        out.emplace_back(begin + length_of(begin_bar), end);
    }
};

struct AppendTags {
    std::vector<StringSlice>& out;

    void operator()(unsigned int begin, unsigned int end) const {
        out.emplace_back(begin, begin + length_of(begin_bar));
        out.emplace_back(end, end + length_of(end_bar));
    }
};

static_assert(begin_bar.size() == begin_sub.size() && end_bar.size() == end_sub.size());

}  // namespace

SpaceGroupStyleFinder::~SpaceGroupStyleFinder() = default;

void SpaceGroupStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    find_subscripts(text(), AppendEnclosed{out});
}

void SpaceGroupStyleFinder::overstrike(std::vector<StringSlice>& out) const {
    find_bar(text(), AppendEnclosed{out});
}

void SpaceGroupStyleFinder::invisible(std::vector<StringSlice>& out) const {
    find_bar(text(), AppendTags{out});
    find_subscripts(text(), AppendTags{out});
}

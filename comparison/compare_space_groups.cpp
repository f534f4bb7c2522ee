#include "comparison/compare_space_groups.h"

#include <gemmi/symmetry.hpp>

#include "comparison/compare_plain_texts.h"
#include "entries/space_group_symbol.h"
#include "text/Position.h"

namespace {

/// The symbol with a "-" before what is barred, by its style or by overlines, as symbols are found.
std::string with_bars_in_front(const ComparedText& text) {
    constexpr std::string_view overlines[] = {"\u0305", "\u0304"};
    const std::string_view shown = text.shown();
    std::string symbol;
    auto script = text.scripts().begin();
    for (unsigned int position = 0; position < shown.size(); ++position) {
        for (; script != text.scripts().end() && script->place.from() <= position; ++script) {
            if (script->is_barred) symbol += '-';
        }
        const std::string_view behind = shown.substr(position + 1);
        unsigned int bar = 0;
        for (const std::string_view overline : overlines) {
            if (behind.starts_with(overline)) bar = length_of(overline);
        }
        if (bar > 0) symbol += '-';
        symbol += shown[position];
        position += bar;
    }
    return symbol;
}

Finding::Reason reason_for(const SpaceGroupSetting& left, const SpaceGroupSetting& right) {
    using Reason = Finding::Reason;
    if (left.group->number != right.group->number) return Reason::group;
    const bool is_same = allows(left, *right.group) || allows(right, *left.group);
    return is_same ? Reason::group_notation : Reason::group_setting;
}

}  // namespace

std::vector<Finding> compare_space_groups(const ComparedText& left, const ComparedText& right,
                                          const ComparisonPolicy& policy) {
    const SpaceGroupSetting settings[] = {find_space_group(with_bars_in_front(left), 0, 0),
                                          find_space_group(with_bars_in_front(right), 0, 0)};
    if (!settings[0].group || !settings[1].group) return compare_plain_texts(left, right, policy);
    Finding finding{reason_for(settings[0], settings[1]),
                    {0, length_of(left.shown())},
                    {0, length_of(right.shown())}};
    finding.left_number = settings[0].group->number;
    finding.right_number = settings[1].group->number;
    return {finding};
}

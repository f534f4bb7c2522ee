#include <algorithm>
#include <gemmi/symmetry.hpp>

#include "entries/EditedEntry.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/field_edit.h"
#include "entries/space_group_symbol.h"

namespace {

/// A symbol as it is shown, "P2<sub>1</sub>/c" or "P<bar>1</bar>", without the tags.
std::string without_tags(std::string_view text) {
    std::string symbol;
    while (!text.empty()) {
        const std::size_t end = text.front() == '<' ? text.find('>') : std::string_view::npos;
        if (end == std::string_view::npos) {
            symbol += text.front();
            text.remove_prefix(1);
            continue;
        }
        if (text.substr(0, end) == "<bar") symbol += '-';
        text.remove_prefix(end + 1);
    }
    return one_line(symbol);
}

/// The symbol of a group with blanks, as full as another that a file has: "P 1 21/c 1" or
/// "P 21/c", "R -3 :H" or "R -3".
std::string symbol_like(const SpaceGroupSetting& setting, const std::string& old) {
    const gemmi::SpaceGroup& group = *setting.group;
    std::string symbol = group.hm;
    constexpr std::string_view axis = " 1 ";
    const bool is_of_b_axis = std::string_view(symbol).substr(1, axis.size()) == axis &&
                              symbol.ends_with(" 1") && group.number > 2 && group.number < 16;
    if (is_of_b_axis && old.find(axis) == std::string::npos) {
        symbol = symbol.substr(0, 2) + symbol.substr(4, symbol.size() - 6);
    }
    const bool has_choice = old.find(':') != std::string::npos;
    if (group.ext && (has_choice || !setting.origin_is_open))
        symbol.append(" :").append(1, group.ext);
    return symbol;
}

}  // namespace

void edit_space_group(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    const Tags tags = field.parts.front().tags();
    if (text == entry.shown(field.label)) return;
    if (text.empty()) return entry.set(tags, std::nullopt);
    BlockReader& block = entry.block();
    const auto angle = [&](std::size_t i) {
        const std::string written = block.first_text(just(cif_tags::cell[i]));
        return read_number(written).value_or(UncertainValue{}).value;
    };
    constexpr std::size_t alpha = 3, gamma = 5;
    const auto find = [&](const std::string& symbol) {
        return find_space_group(symbol, angle(alpha), angle(gamma));
    };
    const std::string symbol = without_tags(text);
    const SpaceGroupSetting setting = find(symbol);
    if (!setting.group) refuse("the symbol of a space group", text);
    const bool has_blanks = symbol.find(' ') != std::string::npos;
    bool has_symbol = false;
    for (const std::string_view tag : tags) {
        const BlockReader::Value value = block.first_value(just(tag));
        if (!value) continue;
        has_symbol = true;
        const std::string old = one_line(value.text);
        const SpaceGroupSetting old_setting = find(old);
        if (old_setting.group && allows(setting, *old_setting.group)) continue;
        entry.set(value, has_blanks ? symbol : symbol_like(setting, old));
    }
    if (has_symbol) return;
    // The older name stands beside other older ones.
    const bool is_old = block.block().has_any("_symmetry_");
    entry.set(is_old ? tags.subspan(1) : tags, has_blanks ? symbol : symbol_like(setting, symbol));
}

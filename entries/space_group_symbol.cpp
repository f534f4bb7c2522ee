#include "entries/space_group_symbol.h"

#include <algorithm>
#include <gemmi/symmetry.hpp>

#include "entries/cif_text.h"

namespace {

constexpr std::size_t longest_symbol = 60;  // in bytes; the longest of the table has 11

bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// A symbol without blanks and its choice of origin or axes, in the letters of gemmi's table.
struct Symbol {
    std::string text;
    char choice = '\0';
};

/// Takes the choice off that letters at the end stand for; no symbol has them elsewhere.
char take_choice(std::string& text) {
    constexpr struct {
        std::string_view end;
        char choice;
    } choices[] = {{":1", '1'}, {":2", '2'}, {":h", 'H'}, {":r", 'R'}, {"o1", '1'}, {"o2", '2'},
                   {"hr", 'H'}, {"s", '1'},  {"z", '2'},  {"h", 'H'},  {"r", 'R'}};
    for (const auto& row : choices) {
        if (text.size() <= row.end.size() + 1 || !text.ends_with(row.end)) continue;
        text.resize(text.size() - row.end.size());
        if (text.back() == ':') text.pop_back();
        return row.choice;
    }
    return '\0';
}

/// The length of a spelling of the minus for a bar that `text` begins with, or 0.
std::size_t length_of_bar(std::string_view text) {
    for (const std::string_view bar : {"-", "bar", "\\=", "\u2212", "\u2013"}) {
        if (text.starts_with(bar)) return bar.size();
    }
    return 0;
}

Symbol plain(std::string_view written) {
    constexpr std::string_view left_out = "()~_ \t\r\n'\"";
    const std::string lower = in_lower_case(written);
    std::string_view rest = lower;
    Symbol symbol;
    while (!rest.empty()) {
        // "P2(1)/n", but what stands in other parentheses is a remark: "(No. 14)".
        if (rest[0] == '(' && (rest.size() == 1 || !is_digit(rest[1]))) break;
        const std::size_t bar = length_of_bar(rest);
        if (bar > 0) {
            if (!symbol.text.ends_with('-')) symbol.text += '-';
        } else if (left_out.find(rest[0]) == std::string_view::npos) {
            symbol.text += rest[0];
        }
        rest.remove_prefix(std::max<std::size_t>(bar, 1));
    }
    symbol.choice = take_choice(symbol.text);
    return symbol;
}

/// "fm3m" as "fm-3m": older symbols of cubic groups have no bar.
std::string with_bar(std::string_view text) {
    const bool is_cubic = text.size() > 2 && text[2] == '3' &&
                          std::string_view("mnad").find(text[1]) != std::string_view::npos;
    std::string result(text.substr(0, is_cubic ? 2 : 0));
    if (is_cubic) result += '-';
    result += text.substr(is_cubic ? 2 : 0);
    return result;
}

/// "P 1 21/c 1" as "P21/c".
std::string without_axes(const gemmi::SpaceGroup& group) {
    std::string text;
    std::string_view rest = group.hm;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (rest.substr(0, end) != "1") text += rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return text;
}

bool is_monoclinic(const gemmi::SpaceGroup& group) { return group.number > 2 && group.number < 16; }

/// "P21/b", which gemmi knows with its axis alone: "P 1 1 21/b".
const gemmi::SpaceGroup* find_without_axis(const std::string& symbol) {
    for (const gemmi::SpaceGroup& group : gemmi::spacegroup_tables::main) {
        if (is_monoclinic(group) && in_lower_case(without_axes(group)) == symbol) return &group;
    }
    return nullptr;
}

}  // namespace

SpaceGroupSetting find_space_group(std::string_view symbol, double alpha, double gamma) {
    // To gemmi some numbers are symbols too.
    if (symbol.empty() || symbol.size() > longest_symbol || is_digit(symbol[0])) return {};
    const Symbol asked = plain(symbol);
    const std::string choice = asked.choice ? std::string(":") + asked.choice : "";
    SpaceGroupSetting setting;
    for (const std::string& text : {asked.text, with_bar(asked.text)}) {
        for (const std::string& end : {choice, std::string()}) {
            // Marks of origins stand behind symbols of one origin too.
            if (!setting.group)
                setting.group = gemmi::find_spacegroup_by_name(text + end, alpha, gamma);
        }
    }
    if (!setting.group) setting.group = find_without_axis(asked.text);
    if (!setting.group) return {};
    const char chosen = setting.group->ext;
    const bool has_cell = alpha != 0;
    setting.origin_is_open =
        chosen != asked.choice && (chosen == '1' || chosen == '2' || !has_cell);
    setting.axis_is_open =
        is_monoclinic(*setting.group) && in_lower_case(without_axes(*setting.group)) == asked.text;
    return setting;
}

bool allows(const SpaceGroupSetting& setting, const gemmi::SpaceGroup& group) {
    const gemmi::SpaceGroup& own = *setting.group;
    if (own.number != group.number) return false;
    const bool has_axis = std::string_view(own.hm) == group.hm ||
                          (setting.axis_is_open && without_axes(own) == without_axes(group));
    return has_axis && (setting.origin_is_open || own.ext == group.ext);
}

int number_of(const SpaceGroupSetting& setting) {
    return setting.group ? setting.group->number : 0;
}

std::string name_of(const SpaceGroupSetting& setting) {
    if (setting.axis_is_open) return without_axes(*setting.group);
    return setting.origin_is_open ? setting.group->hm : setting.group->xhm();
}

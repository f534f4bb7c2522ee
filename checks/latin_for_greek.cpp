#include "checks/latin_for_greek.h"

#include <algorithm>
#include <iterator>

#include "text/internal/ascii.h"

namespace {

struct Letter {
    char latin;
    const char* code;
};

// Bridging, hapticity and the atom that binds.
constexpr Letter letters[] = {{'m', "\\m"}, {'h', "\\h"}, {'k', "\\k"}};

// What "meta" stands before in no name of a complex.
constexpr std::string_view bridges[] = {"oxo",     "oxido",   "hydroxo",  "hydroxido", "aqua",
                                        "dppm",    "dppe",    "chlorido", "bromido",   "iodido",
                                        "azido",   "sulfido", "peroxo",   "cyanido",   "hydrido",
                                        "oxalato", "acetato", "carbonyl"};

/// The size of a number at the front, with or without the marks that raise or lower it: "~2~".
std::size_t size_of_number(std::string_view text) {
    std::size_t at = text.starts_with('~') || text.starts_with('^') ? 1 : 0;
    const bool marked = at == 1;
    const std::size_t digits = at;
    while (at < text.size() && is_ascii_digit(text[at])) ++at;
    if (at == digits) return 0;
    if (!marked) return at;
    return at < text.size() && text[at] == text[0] ? at + 1 : 0;
}

bool begins_with_bridge(std::string_view text) {
    return std::any_of(std::begin(bridges), std::end(bridges),
                       [text](std::string_view bridge) { return text.starts_with(bridge); });
}

/// Whether the letter at the front stands for a Greek one.
bool stands_for_greek(std::string_view text) {
    std::string_view rest = text.substr(1);
    const std::size_t number = size_of_number(rest);
    rest.remove_prefix(number);
    if (!rest.starts_with('-')) return false;
    rest.remove_prefix(1);
    if (number > 0) return !rest.empty() && is_ascii_letter(rest[0]);
    return text[0] == 'm' && begins_with_bridge(rest);
}

}  // namespace

std::optional<LatinForGreek> latin_for_greek(std::string_view name) {
    for (std::size_t at = 0; at < name.size(); ++at) {
        const bool begins_part =
            at == 0 || std::string_view("([{ -").find(name[at - 1]) != std::string_view::npos;
        if (!begins_part) continue;
        for (const Letter& letter : letters) {
            if (name[at] != letter.latin || !stands_for_greek(name.substr(at))) continue;
            return LatinForGreek{at, letter.code};
        }
    }
    return std::nullopt;
}

#include "comparison/TextUnits.h"

#include <algorithm>
#include <string_view>

#include "comparison/folding.h"
#include "comparison/unicode.h"
#include "markup/Utf8.h"
#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }
char in_lower_case(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Where the run of such characters ends that begins at `from`.
template <class Is>
std::size_t end_of_run(std::string_view text, std::size_t from, Is is) {
    while (from < text.size() && is(text[from])) ++from;
    return from;
}

/// Whether the word is the name of a Greek letter: the folding of one, and of nothing shorter.
bool is_greek_name(std::string_view word) {
    constexpr std::string_view names[] = {
        "alpha", "beta",  "gamma",  "delta",   "epsilon", "zeta", "eta",     "theta",
        "iota",  "kappa", "lambda", "mu",      "nu",      "xi",   "omicron", "pi",
        "rho",   "sigma", "tau",    "upsilon", "phi",     "chi",  "psi",     "omega"};
    if (word.size() < 2 || word.size() > 7) return false;
    std::string lower(word);
    std::transform(lower.begin(), lower.end(), lower.begin(), in_lower_case);
    return std::find(std::begin(names), std::end(names), lower) != std::end(names);
}

/// How far the character itself is raised or lowered, in either direction by 1.
int valign_of(char32_t code) {
    if (code == 0xB2 || code == 0xB3 || code == 0xB9) return 1;
    if (code >= 0x2070 && code <= 0x207F) return 1;
    return code >= 0x2080 && code <= 0x209C ? -1 : 0;
}

TextUnit::Class class_of(std::string_view folded_text) {
    using Class = TextUnit::Class;
    const char c = folded_text.empty() ? '\0' : folded_text[0];
    if (is_ascii_letter(c) || !is_ascii(c)) return Class::letter;
    if (is_ascii_digit(c)) return Class::digits;
    if (is_ascii_blank(static_cast<unsigned char>(c))) return Class::blank;
    return std::string_view(".,;:!?()[]{}\"-/").find(c) != std::string_view::npos
               ? Class::punctuation
               : Class::other;
}

/// Where the run of characters ends that are raised or lowered by themselves as the one at `from`.
std::size_t end_of_script(std::string_view text, std::size_t from) {
    const int valign = valign_of(first_character(text.substr(from)).code);
    while (from < text.size()) {
        const std::string_view rest = text.substr(from);
        if (valign_of(first_character(rest).code) != valign) break;
        from += end_of_character(rest);
    }
    return from;
}

/// Where the unit ends that begins at `from` of a text that ends before the next script.
std::size_t end_of_unit(std::string_view text, std::size_t from) {
    const char first = text[from];
    std::size_t to = from + 1;
    if (!is_ascii(first)) {
        const bool is_script = valign_of(first_character(text.substr(from)).code) != 0;
        return is_script ? end_of_script(text, from) : from + end_of_character(text.substr(from));
    }
    if (is_ascii_digit(first)) to = end_of_run(text, from, is_ascii_digit);
    if (is_ascii_letter(first) && (from == 0 || !is_ascii_letter(text[from - 1]))) {
        const std::size_t end = end_of_run(text, from, is_ascii_letter);
        if (is_greek_name(text.substr(from, end - from))) to = end;
    }
    if (to == text.size() || is_ascii(text[to])) return to;
    return to - 1 + end_of_character(text.substr(to - 1));  // with accents behind it
}

}  // namespace

CutText TextCutter::cut(const ComparedText& text, const StringSlice& range) {
    const std::string_view shown = text.shown();
    const auto& scripts = text.scripts();
    auto script = std::partition_point(scripts.begin(), scripts.end(), [&](const auto& candidate) {
        return candidate.place.to() <= range.from();
    });
    TextUnits units;
    for (unsigned int from = range.from(); from < range.to();) {
        const unsigned int next_script =
            script == scripts.end() ? range.to() : std::min(range.to(), script->place.from());
        if (next_script > from) {
            const unsigned int to = to_position(end_of_unit(shown.substr(0, next_script), from));
            add(units, shown, {{from, to}, 0, false});
            from = to;
            continue;
        }
        const unsigned int to = std::min(range.to(), script->place.to());
        add(units, shown, {{from, to}, script->valign, script->is_barred});
        ++script;
        from = to;
    }
    return {text, range, std::move(units)};
}

void TextCutter::add(TextUnits& units, std::string_view shown, const ComparedText::Script& script) {
    const StringSlice& place = script.place;
    const std::string_view text = shown.substr(place.from(), place.length());
    TextUnit unit{place.from(),     place.to(),    0, static_cast<signed char>(script.valign),
                  script.is_barred, class_of(text)};
    if (text.size() == 1 && is_ascii(text[0]) && text[0] != '"' && text[0] != '`') {
        const char usual =
            is_ascii_blank(static_cast<unsigned char>(text[0])) ? ' ' : in_lower_case(text[0]);
        unit.key = static_cast<unsigned char>(usual);
    } else {
        const std::string key = folded(text, {});
        unit.key = key_of(key);
        unit.kind = class_of(key);
        const int own = valign_of(first_character(text).code);
        if (unit.valign == 0) unit.valign = static_cast<signed char>(own);
    }
    const bool goes_on = unit.kind == TextUnit::Class::blank && !units.empty() &&
                         units.back().kind == unit.kind && units.back().valign == unit.valign &&
                         units.back().is_barred == unit.is_barred;
    if (goes_on) {
        units.back().to = unit.to;
    } else {
        units.push_back(unit);
    }
}

std::uint32_t TextCutter::key_of(std::string_view text) {
    if (text.size() == 1 && is_ascii(text[0])) return static_cast<unsigned char>(text[0]);
    const auto next = static_cast<std::uint32_t>(0x80 + keys_.size());
    return keys_.emplace(text, next).first->second;
}

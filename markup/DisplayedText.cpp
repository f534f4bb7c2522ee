#include "markup/DisplayedText.h"

#include <algorithm>

#include "markup/TextItemToUnicodeGreek.h"
#include "markup/Utf8.h"
#include "text/Position.h"
#include "text/TextAtom.h"

namespace {

constexpr DisplayedText::Unit units[] = {DisplayedText::bytes, DisplayedText::characters,
                                         DisplayedText::utf16};

}  // namespace

DisplayedText::DisplayedText(const TextItem& item) : DisplayedText(item, item.atomize()) {}

DisplayedText::DisplayedText(const TextItem& item, const std::vector<TextAtom>& atoms)
    : runs_{{0, {0, 0, 0}, false}} {
    const TextItemToUnicodeGreek letters;
    if (item.characters().empty()) return;  // of which there is an atom, with a NUL
    for (const TextAtom& atom : atoms) {
        const std::string covered = atom.text();
        if (atom.invisible()) {
            add_covered(length_of(covered), "");
        } else if (!atom.replacement_txt().empty()) {
            add_covered(length_of(covered), atom.replacement_txt());
        } else if (atom.greek() != TextItem::no_symbol) {
            add_covered(length_of(covered), letters.convert(atom.greek()));
        } else {
            add_plain(covered);
        }
    }
}

void DisplayedText::add_plain(std::string_view text) {
    while (!text.empty()) {
        const auto is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
        const auto end = std::find_if_not(text.begin(), text.end(), is_ascii);
        const auto plain = static_cast<std::size_t>(end - text.begin());
        if (plain > 0) {
            runs_.back().is_plain = true;
            text_ += text.substr(0, plain);
            Run next = runs_.back();
            next.is_plain = false;
            next.in_item += length_of(text.substr(0, plain));
            for (const Unit unit : units) next.shown[unit] += length_of(text.substr(0, plain));
            runs_.push_back(next);
        } else {
            const std::size_t size = first_character(text).size;
            add_covered(to_position(size), text.substr(0, size));
        }
        text.remove_prefix(plain > 0 ? plain : first_character(text).size);
    }
}

/// Adds what is shown for the next `size` characters of the item.
void DisplayedText::add_covered(unsigned int size, std::string_view shown) {
    Run next = runs_.back();
    next.in_item += size;
    next.shown[bytes] += length_of(shown);
    text_ += shown;
    while (!shown.empty()) {
        const Utf8Character character = first_character(shown);
        constexpr char32_t first_of_two = 0x10000;
        next.shown[characters] += 1;
        next.shown[utf16] += character.code >= first_of_two ? 2 : 1;
        shown.remove_prefix(character.size);
    }
    runs_.push_back(next);
}

StringSlice DisplayedText::shown(const StringSlice& in_item, Unit unit) const {
    const unsigned int from = shown_caret(in_item.from(), unit);
    return {from, std::max(from, in_item.empty() ? from : shown_end(in_item.to(), unit))};
}

StringSlice DisplayedText::in_item(const StringSlice& shown, Unit unit) const {
    const unsigned int from = item_caret(shown.from(), unit);
    return {from, std::max(from, shown.empty() ? from : item_end(shown.to(), unit))};
}

/// The run that holds the character behind a position; the end where there is none.
DisplayedText::Runs::const_iterator DisplayedText::run_of(unsigned int in_item) const {
    return std::prev(std::upper_bound(
        runs_.begin(), runs_.end(), in_item,
        [](unsigned int position, const Run& run) { return position < run.in_item; }));
}

unsigned int DisplayedText::shown_caret(unsigned int in_item, Unit unit) const {
    const auto run = run_of(in_item);
    return run->shown[unit] + (run->is_plain ? in_item - run->in_item : 0);
}

/// Likewise, but behind what the position is inside of.
unsigned int DisplayedText::shown_end(unsigned int in_item, Unit unit) const {
    const auto run = run_of(in_item);
    if (run->is_plain || run->in_item == in_item || run + 1 == runs_.end()) {
        return shown_caret(in_item, unit);
    }
    return (run + 1)->shown[unit];
}

unsigned int DisplayedText::item_caret(unsigned int shown, Unit unit) const {
    const auto run = std::prev(std::upper_bound(
        runs_.begin(), runs_.end(), shown,
        [unit](unsigned int position, const Run& next) { return position < next.shown[unit]; }));
    return run->in_item + (run->is_plain ? shown - run->shown[unit] : 0);
}

/// Likewise, but before what is hidden there and behind what the position is inside of.
unsigned int DisplayedText::item_end(unsigned int shown, Unit unit) const {
    const auto next = std::lower_bound(
        runs_.begin(), runs_.end(), shown,
        [unit](const Run& run, unsigned int position) { return run.shown[unit] < position; });
    if (next == runs_.begin() || next == runs_.end()) return item_caret(shown, unit);
    const auto run = std::prev(next);
    return run->is_plain ? run->in_item + (shown - run->shown[unit]) : next->in_item;
}

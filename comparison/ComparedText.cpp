#include "comparison/ComparedText.h"

#include <algorithm>
#include <utility>

#include "markup/Utf8.h"
#include "text/Position.h"
#include "text/TextAtom.h"

ComparedText::ComparedText(const TextItem& item, std::vector<double> uncertainties)
    : item_(item), displayed_(item_), uncertainties_(std::move(uncertainties)) {
    if (item_.characters().empty()) return;
    unsigned int from = 0;
    for (const TextAtom& atom : item_.atomize()) {
        const unsigned int to = from + length_of(atom.text());
        if ((atom.valign() != 0 || atom.overstrike()) && !atom.invisible()) {
            add_script({displayed_.shown({from, to}, DisplayedText::bytes), atom.valign(),
                        atom.overstrike()});
        }
        from = to;
    }
}

void ComparedText::add_script(const Script& script) {
    const bool goes_on = !scripts_.empty() && scripts_.back().valign == script.valign &&
                         scripts_.back().is_barred == script.is_barred &&
                         scripts_.back().place.to() == script.place.from();
    if (goes_on) {
        scripts_.back().place = scripts_.back().place.combine(script.place);
    } else if (!script.place.empty()) {
        scripts_.push_back(script);
    }
}

std::string_view ComparedText::written(const StringSlice& shown) const {
    const StringSlice place = in_item(shown);
    return std::string_view(item_.characters()).substr(place.from(), place.length());
}

std::string ComparedText::shown_with_bars(const StringSlice& in_item) const {
    constexpr std::string_view overline = "\u0305";
    const StringSlice place = displayed_.shown(in_item, DisplayedText::bytes);
    std::string text;
    unsigned int from = place.from();
    const auto copy_up_to = [&](unsigned int end) {
        text += shown().substr(from, end - from);
        from = end;
    };
    auto script = std::partition_point(
        scripts_.begin(), scripts_.end(),
        [&](const Script& candidate) { return candidate.place.to() <= place.from(); });
    for (; script != scripts_.end() && script->place.from() < place.to(); ++script) {
        if (!script->is_barred) continue;
        copy_up_to(std::max(from, script->place.from()));
        const unsigned int end = std::min(place.to(), script->place.to());
        while (from < end) {
            copy_up_to(from + to_position(end_of_character(shown().substr(from, end - from))));
            text += overline;
        }
    }
    copy_up_to(place.to());
    return text;
}

#include "comparison/ComparedText.h"

#include <utility>

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

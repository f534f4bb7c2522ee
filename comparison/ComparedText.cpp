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
        if (atom.valign() != 0 && !atom.invisible()) {
            const StringSlice place = displayed_.shown({from, to}, DisplayedText::bytes);
            const bool goes_on = !scripts_.empty() && scripts_.back().valign == atom.valign() &&
                                 scripts_.back().place.to() == place.from();
            if (goes_on) {
                scripts_.back().place = scripts_.back().place.combine(place);
            } else if (!place.empty()) {
                scripts_.push_back({place, atom.valign()});
            }
        }
        from = to;
    }
}

std::string_view ComparedText::written(const StringSlice& shown) const {
    const StringSlice place = in_item(shown);
    return std::string_view(item_.characters()).substr(place.from(), place.length());
}

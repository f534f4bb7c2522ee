// A text through a finder and an item into every generator.
#include <stdexcept>

#include "finders/CellAngleStyleFinder.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CifFormulaStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/Z_ZPrimeStyleFinder.h"
#include "fuzz/Input.h"
#include "fuzz/shown_text.h"
#include "markup/RichTextTarget.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

template <class Finder>
THandle<InputTextStyleFinder> make() {
    return make_handle<Finder>();
}

constexpr THandle<InputTextStyleFinder> (*finders[])() = {
    make<TevoChemicalNameStyleFinder>,
    make<CifChemicalNameStyleFinder>,
    make<TevoChemicalFormulaStyleFinder>,
    make<SpaceGroupStyleFinder>,
    make<CellAngleStyleFinder>,
    make<CombinedCellLengthsStyleFinder>,
    make<Z_ZPrimeStyleFinder>,
    make<TevoPublicationStyleFinder>,
    make<CifFormulaStyleFinder>,
};

/// What the item's runs show.
std::string shown(const TextItem& item) {
    std::string text;
    if (item.text().empty()) return text;
    for (const TextAtom& atom : item.atomize()) {
        if (atom.invisible()) continue;
        if (!atom.replacement_txt().empty()) {
            text += atom.replacement_txt();
        } else if (atom.greek() != TextItem::no_symbol) {
            text += TextItemToUnicodeGreek().convert(atom.greek());
        } else {
            text += atom.text();
        }
    }
    return text;
}

/// The generator's text, twice the same; empty where the target refuses the item.
std::string written(const TextItem& item, const RichTextTarget& target) {
    const auto generator = target.make_generator();
    try {
        std::string once = item.mark_up_text(*generator);
        require(item.mark_up_text(*generator) == once, "a generator used twice says the same");
        return once;
    } catch (const std::range_error&) {
        return {};  // a letter that the target cannot name
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const auto make_finder = finders[input.byte() % std::size(finders)];
    const unsigned int line_length = input.byte();
    TextItem item(make_finder());
    try {
        item.set_text(input.rest());
    } catch (const std::runtime_error&) {
        return 0;  // refused, with the finder's or the item's own words
    }
    for (const RichTextTarget& target : rich_text_targets()) {
        item.set_no_linebreak();
        const std::string whole = written(item, target);
        if (std::string_view(target.name) == "html5" && html5_keeps(item.text())) {
            require(html_text(whole) == shown(item), "html5 shows what the runs show", whole);
        }
        if (std::string_view(target.name) == "tevo" && make_finder == finders[0]) {
            try {
                const TextItem again(make_finder(), whole);
                const std::string twice = written(again, target);
                require(written(TextItem(make_finder(), twice), target) == twice,
                        "the database's mark-up comes back", twice);
            } catch (const std::runtime_error&) {
            }
        }
        item.set_line_length(line_length);
        written(item, target);
    }
    return 0;
}

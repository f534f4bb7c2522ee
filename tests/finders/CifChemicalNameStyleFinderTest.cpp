#include "finders/CifChemicalNameStyleFinder.h"

#include <gmock/gmock.h>

#include "markup/TevoRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

struct Found {
    std::vector<StringSlice> subscripts, superscripts, invisible;
    std::vector<GreekSlice> greek;

    Found& ask(const InputTextStyleFinder& finder) {
        finder.subscripts(subscripts);
        finder.superscripts(superscripts);
        finder.invisible(invisible);
        finder.greek(greek);
        return *this;
    }
    friend bool operator==(const Found&, const Found&) = default;
};

std::string tevo(const std::string& text) {
    TevoRichTextGenerator generator;
    return TextItem(make_handle<CifChemicalNameStyleFinder>(), text).mark_up_text(generator);
}

}  // namespace

TEST(CifChemicalNameStyleFinder, FindsScriptsMarkersAndLetters) {
    const struct {
        const char* text;
        Found found;
    } cases[] = {
        {"", {}},
        {"C~2~H~4~", {{{2, 3}, {6, 7}}, {}, {{1, 2}, {3, 4}, {5, 6}, {7, 8}}, {}}},
        {"Fe^3+^~x~", {{{7, 8}}, {{3, 5}}, {{6, 7}, {8, 9}, {2, 3}, {5, 6}}, {}}},
        {"~~", {{{1, 1}}, {}, {{0, 1}, {1, 2}}, {}}},
        {"a~b", {}},
        {"~a~b~", {{{1, 2}}, {}, {{0, 1}, {2, 3}}, {}}},
        {"\\a-D \\\\1\\", {{}, {}, {}, {{0, 2, TextItem::alpha}}}},
        {"\\f\\d\\A\\D\\F\\J",
         {{},
          {},
          {},
          {{0, 2, TextItem::delta},
           {2, 4, TextItem::no_symbol},
           {4, 6, TextItem::alpha},
           {6, 8, TextItem::cdelta},
           {8, 10, TextItem::delta},
           {10, 12, TextItem::no_symbol}}}},
        {"\\\xE4", {}},
    };
    CifChemicalNameStyleFinder finder;
    for (const auto& c : cases) {
        finder.set_text(c.text);  // a second text forgets the first
        EXPECT_EQ(Found().ask(finder), c.found) << c.text;
    }
}

TEST(CifChemicalNameStyleFinder, LongRunsNeedNoStack) {
    const std::string inside(200000, 'x');
    EXPECT_EQ(tevo("~" + inside + "~"), "!" + inside + "$");
    EXPECT_EQ(tevo("~" + inside), "~" + inside);
}

#include "markup/DisplayedText.h"

#include <gmock/gmock.h>

#include "finders/CifTextStyleFinder.h"
#include "tests/Random.h"
#include "text/TextItem.h"

namespace {

DisplayedText displayed(const std::string& cif_text) {
    return DisplayedText(TextItem(make_handle<CifTextStyleFinder>(), cif_text));
}

}  // namespace

TEST(DisplayedText, FindsItsWayBothWays) {
    const struct {
        std::string text;
        StringSlice in_item, bytes, characters, utf16, back;
    } cases[] = {
        {"a\\'eb", {1, 4}, {1, 3}, {1, 2}, {1, 2}, {1, 4}},  // an accent
        {"a\\'eb", {2, 3}, {1, 3}, {1, 2}, {1, 2}, {1, 4}},  // a part of it
        {"F^2^x", {2, 3}, {1, 2}, {1, 2}, {1, 2}, {2, 3}},   // what is raised
        {"F^2^x", {0, 5}, {0, 3}, {0, 3}, {0, 3}, {0, 5}},   // hidden parts inside
        {"F^2^x", {1, 4}, {1, 2}, {1, 2}, {1, 2}, {2, 3}},   // and around
        {"\U0001D538\\a!", {0, 6}, {0, 6}, {0, 2}, {0, 3}, {0, 6}},
        {"\U0001D538\\a!", {6, 7}, {6, 7}, {2, 3}, {3, 4}, {6, 7}},
        {"~2~", {3, 3}, {1, 1}, {1, 1}, {1, 1}, {3, 3}},
        {"", {0, 9}, {0, 0}, {0, 0}, {0, 0}, {0, 0}},
    };
    for (const auto& test : cases) {
        const DisplayedText text = displayed(test.text);
        EXPECT_EQ(text.shown(test.in_item, DisplayedText::bytes), test.bytes) << test.text;
        EXPECT_EQ(text.shown(test.in_item, DisplayedText::characters), test.characters);
        EXPECT_EQ(text.shown(test.in_item, DisplayedText::utf16), test.utf16);
        EXPECT_EQ(text.in_item(test.bytes, DisplayedText::bytes), test.back) << test.text;
        EXPECT_EQ(text.in_item(test.characters, DisplayedText::characters), test.back);
        EXPECT_EQ(text.in_item(test.utf16, DisplayedText::utf16), test.back);
    }
}

TEST(DisplayedText, WhatIsShownSomewhereComesFromThere) {
    const std::vector<std::string> pieces = {"a",          "\\a", "\\'e", "~2~", "^",    "é",
                                             "\U0001D538", "<i>", "</i>", "--",  "\xFF", "&lt;"};
    Random random(3);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = random_text(random, pieces, 7);
        const DisplayedText shown = displayed(text);
        for (const auto unit :
             {DisplayedText::bytes, DisplayedText::characters, DisplayedText::utf16}) {
            const unsigned int size = shown.size(unit);
            for (unsigned int from = 0; from < size; ++from) {
                const StringSlice item = shown.in_item({from, from + 1}, unit);
                const StringSlice back = shown.shown(item, unit);
                ASSERT_TRUE(back.from() <= from && back.to() > from) << text;
                ASSERT_EQ(shown.in_item(back, unit), item) << text;
            }
        }
    }
}

#include <gmock/gmock.h>

#include <stdexcept>

#include "markup/CifTagFactory.h"
#include "markup/Html5TagFactory.h"
#include "markup/HtmlTagFactory.h"
#include "markup/QtTagFactory.h"
#include "markup/TevoTagFactory.h"
#include "markup/TextItemToCifGreek.h"
#include "markup/TextItemToHtml5Greek.h"
#include "markup/TextItemToHtmlGreek.h"
#include "markup/TextItemToQtGreek.h"
#include "markup/TextItemToTevoGreek.h"

using testing::StrEq;
using testing::ThrowsMessage;

namespace {

/// All texts of a factory, the two of a style around its first letter, lines broken at the end.
std::string vocabulary(const RichTextTagFactory& f) {
    return f.start_bold() + "b" + f.end_bold() + " " + f.start_italic() + "i" + f.end_italic() +
           " " + f.start_color(TextItem::yellow4) + "c" + f.end_color() + " " +
           f.start_superscript() + "p" + f.end_superscript() + " " + f.start_subscript() + "s" +
           f.end_subscript() + " " + f.start_greek() + "g" + f.end_greek() + " " +
           f.start_overstrike() + "o" + f.end_overstrike() + " " + f.start_invisible() + "v" +
           f.end_invisible() + " " + f.start_replacement_text() + "r" + f.end_replacement_text() +
           " " + f.line_break();
}

/// What a converter writes for the symbols from `first` to clambda, one after the other.
std::string alphabet(const TextItemToOtherGreek& converter, int first = 0) {
    std::string all;
    for (int i = first; i <= TextItem::clambda; ++i) {
        all += converter.convert(static_cast<TextItem::GreekSymbol>(i));
    }
    return all;
}

}  // namespace

TEST(RichTextTagFactory, EachTargetHasItsVocabulary) {
    EXPECT_EQ(vocabulary(TevoTagFactory()), "b i c $p! !s$ g o v r ");
    EXPECT_EQ(vocabulary(CifTagFactory()), "b i c ^p^ ~s~ g o v r \n");
    const char* const html =
        "<b>b</b> <i>i</i> <font color=yellow4>c</font> <sup>p</sup> <sub>s</sub> "
        "<font face=symbol>g</font> <u>o</u> v r <br>";
    EXPECT_EQ(vocabulary(HtmlTagFactory()), html);
    EXPECT_EQ(vocabulary(QtTagFactory()), html);
    EXPECT_EQ(HtmlTagFactory().end_font(), "</font>");
    EXPECT_EQ(
        vocabulary(Html5TagFactory()),
        "<b>b</b> <i>i</i> <span style=\"color:#8b8b00\">c</span> <sup>p</sup> <sub>s</sub> g "
        "<span style=\"text-decoration:overline\">o</span> v r <br>");
}

TEST(TextItemToOtherGreek, EachTargetHasItsAlphabet) {
    EXPECT_EQ(alphabet(TextItemToTevoGreek()),
              "alphabetagammadeltaepsilonzetaetathetaiotakappalambdamunuxiomicronpirhosigmatau"
              "upsilonphichipsiomegacdeltaclambda");
    EXPECT_EQ(alphabet(TextItemToCifGreek()),
              "\\a\\b\\g\\f\\e\\z\\h\\q\\i\\k\\l\\m\\n\\x\\o\\p\\r\\s\\t\\u\\f\\c\\y\\w\\D\\L");
    EXPECT_EQ(alphabet(TextItemToHtmlGreek(), 1), "abgdezhqiklmnxoprstufcywDL");
    EXPECT_EQ(alphabet(TextItemToQtGreek(), 1), "abgdezhqiklmnxoprstufcywDL");
    EXPECT_EQ(alphabet(TextItemToHtml5Greek()), "αβγδεζηθικλμνξοπρστυφχψωΔΛ");
}

TEST(TextItemToOtherGreek, RefusesWhatIsNoSymbol) {
    const struct {
        THandle<TextItemToOtherGreek> converter;
        const char* message;
        bool refuses_no_symbol;
    } cases[] = {
        {make_handle<TextItemToTevoGreek>(), "Unknown sym. TextItemToTevoGreek", false},
        {make_handle<TextItemToCifGreek>(), "Unknown sym. TextItemToCifGreek", false},
        {make_handle<TextItemToHtmlGreek>(), "Unknown sym. TextItemToHtmlGreek", true},
        {make_handle<TextItemToQtGreek>(), "Unknown sym. TextItemToQtGreek", true},
        {make_handle<TextItemToHtml5Greek>(), "Unknown sym. TextItemToHtml5Greek", false},
    };
    for (const auto& c : cases) {
        const auto refused = ThrowsMessage<std::range_error>(StrEq(c.message));
        for (const int value : {27, -1, 1000}) {
            EXPECT_THAT([&] { c.converter->convert(static_cast<TextItem::GreekSymbol>(value)); },
                        refused);
        }
        if (c.refuses_no_symbol) {
            EXPECT_THAT([&] { c.converter->convert(TextItem::no_symbol); }, refused);
        }
    }
}

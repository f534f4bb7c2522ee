#include <gmock/gmock.h>

#include <stdexcept>

#include "markup/TextItemToCifGreek.h"
#include "markup/TextItemToHtml5Greek.h"
#include "markup/TextItemToHtmlGreek.h"
#include "markup/TextItemToLatexGreek.h"
#include "markup/TextItemToQtGreek.h"
#include "markup/TextItemToTevoGreek.h"
#include "markup/TextItemToUnicodeGreek.h"

using testing::StrEq;
using testing::ThrowsMessage;

namespace {

/// What a converter writes for the symbols from `first` to clambda, one after the other.
std::string alphabet(const TextItemToOtherGreek& converter, int first = 0) {
    std::string all;
    for (int i = first; i <= TextItem::clambda; ++i) {
        all += converter.convert(static_cast<TextItem::GreekSymbol>(i));
    }
    return all;
}

}  // namespace

TEST(TextItemToOtherGreek, EachTargetHasItsAlphabet) {
    EXPECT_EQ(alphabet(TextItemToTevoGreek()),
              "alphabetagammadeltaepsilonzetaetathetaiotakappalambdamunuxiomicronpirhosigmatau"
              "upsilonphichipsiomegacdeltaclambda");
    EXPECT_EQ(alphabet(TextItemToCifGreek()),
              "\\a\\b\\g\\f\\e\\z\\h\\q\\i\\k\\l\\m\\n\\x\\o\\p\\r\\s\\t\\u\\f\\c\\y\\w\\D\\L");
    EXPECT_EQ(alphabet(TextItemToHtmlGreek(), 1), "abgdezhqiklmnxoprstufcywDL");
    EXPECT_EQ(alphabet(TextItemToQtGreek(), 1), "abgdezhqiklmnxoprstufcywDL");
    EXPECT_EQ(alphabet(TextItemToHtml5Greek()), "αβγδεζηθικλμνξοπρστυφχψωΔΛ");
    EXPECT_EQ(alphabet(TextItemToUnicodeGreek()), alphabet(TextItemToHtml5Greek()));
    EXPECT_EQ(alphabet(TextItemToLatexGreek()),
              "$\\alpha$$\\beta$$\\gamma$$\\delta$$\\epsilon$$\\zeta$$\\eta$$\\theta$$\\iota$"
              "$\\kappa$$\\lambda$$\\mu$$\\nu$$\\xi$$o$$\\pi$$\\rho$$\\sigma$$\\tau$$\\upsilon$"
              "$\\phi$$\\chi$$\\psi$$\\omega$$\\Delta$$\\Lambda$");
}

TEST(TextItemToOtherGreek, RefusesWhatIsNoSymbol) {
    const struct {
        THandle<TextItemToOtherGreek> converter;
        int symbol;
        const char* message;
    } cases[] = {
        {make_handle<TextItemToTevoGreek>(), 27, "Unknown sym. TextItemToTevoGreek"},
        {make_handle<TextItemToCifGreek>(), -1, "Unknown sym. TextItemToCifGreek"},
        {make_handle<TextItemToHtmlGreek>(), 0, "Unknown sym. TextItemToHtmlGreek"},
        {make_handle<TextItemToQtGreek>(), 0, "Unknown sym. TextItemToQtGreek"},
        {make_handle<TextItemToHtml5Greek>(), 27, "Unknown sym. TextItemToHtml5Greek"},
        {make_handle<TextItemToLatexGreek>(), 27, "Unknown sym. TextItemToLatexGreek"},
        {make_handle<TextItemToUnicodeGreek>(), -1, "Unknown sym. TextItemToUnicodeGreek"},
    };
    for (const auto& c : cases) {
        const auto symbol = static_cast<TextItem::GreekSymbol>(c.symbol);
        EXPECT_THAT([&] { c.converter->convert(symbol); },
                    ThrowsMessage<std::range_error>(StrEq(c.message)));
    }
}

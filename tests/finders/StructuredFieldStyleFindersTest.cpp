#include <gmock/gmock.h>

#include <stdexcept>

#include "finders/CellAngleStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/Z_ZPrimeStyleFinder.h"
#include "markup/Html5RichTextGenerator.h"
#include "text/TextItem.h"

using testing::StrEq;
using testing::ThrowsMessage;

namespace {

template <class Finder>
std::string html(const std::string& text) {
    Html5RichTextGenerator generator;
    return TextItem(make_handle<Finder>(), text).mark_up_text(generator);
}

template <class Finder>
void expect_refused(const std::string& text, const char* message) {
    EXPECT_THAT([&] { Finder().set_text(text); }, ThrowsMessage<std::runtime_error>(StrEq(message)))
        << text;
}

}  // namespace

TEST(StructuredFieldStyleFinders, MakeLabelsBold) {
    EXPECT_EQ(html<CellAngleStyleFinder>("a 90 b 100.5(3) g 90"),
              "<b>α</b> 90 <b>β</b> 100.5(3) <b>γ</b> 90");
    EXPECT_EQ(html<CombinedCellLengthsStyleFinder>("a 5.1 b 7 c 9"),
              "<b>a</b> 5.1 <b>b</b> 7 <b>c</b> 9");
    EXPECT_EQ(html<Z_ZPrimeStyleFinder>("Z: 4 Z': 1"), "<b>Z</b>: 4 <b>Z'</b>: 1");
}

TEST(StructuredFieldStyleFinders, RefuseTextsWithoutTheirLabels) {
    expect_refused<CellAngleStyleFinder>("", "CellAngleStyleFinder empty text string error");
    expect_refused<CellAngleStyleFinder>("a b", "CellAngleStyleFinder bad text string error");
    for (const char* text : {"", "a b"}) {
        expect_refused<CombinedCellLengthsStyleFinder>(
            text, "CombinedCellLengthsStyleFinder bad text error");
    }
    expect_refused<Z_ZPrimeStyleFinder>("", "Z_ZPrimeStyleFinder empty text error");
    expect_refused<Z_ZPrimeStyleFinder>("Z: 4", "Z_ZPrimeStyleFinder bad text error");
    for (const char* text : {"", "<j></j><v></v><y></y><p>", "<j></j><v></v><y></y></p>"}) {
        expect_refused<TevoPublicationStyleFinder>(
            text, "TevoPublicationStyleFinder bad journal string error");
    }
}

TEST(StructuredFieldStyleFinders, ReportNothingOfARefusedEmptyText) {
    CombinedCellLengthsStyleFinder lengths;
    TevoPublicationStyleFinder reference;
    std::vector<StringSlice> slices;
    std::vector<ReplacementTextSlice> replacements;
    for (InputTextStyleFinder* finder : {static_cast<InputTextStyleFinder*>(&lengths),
                                         static_cast<InputTextStyleFinder*>(&reference)}) {
        EXPECT_THROW(finder->set_text(""), std::runtime_error);
        finder->bold(slices);
        finder->italic(slices);
        finder->invisible(slices);
        finder->replacement_text(replacements);
        EXPECT_TRUE(slices.empty() && replacements.empty());
    }
}

TEST(SpaceGroupStyleFinder, LowersScrewAxesAndBarsTheFirstInversion) {
    EXPECT_EQ(html<SpaceGroupStyleFinder>("P2<sub>1</sub>2<sub>1</sub>2"),
              "P2<sub>1</sub>2<sub>1</sub>2");
    const std::string bar = "<span style=\"text-decoration:overline\">";
    EXPECT_EQ(html<SpaceGroupStyleFinder>("F<bar>4</bar>d<bar>3</bar>m"),
              "F" + bar + "4</span>d&lt;bar&gt;3&lt;/bar&gt;m");
    EXPECT_EQ(html<SpaceGroupStyleFinder>("P4<sub>2</sub>/n<bar>3"),
              "P4<sub>2</sub>/n&lt;bar&gt;3");
    EXPECT_EQ(html<SpaceGroupStyleFinder>("</sub>P<sub>1"), "&lt;/sub&gt;P&lt;sub&gt;1");
    EXPECT_THAT([] { html<SpaceGroupStyleFinder>("</bar>1<bar>"); },
                ThrowsMessage<std::range_error>(StrEq("length of StringSlice error")));
}

TEST(TevoPublicationStyleFinder, ReadsAsAReference) {
    EXPECT_EQ(html<TevoPublicationStyleFinder>("<j>Acta C</j><v>57</v><y>2001</y><p>1</p>"),
              "<i>Acta C</i> (<b>57</b>, 2001), 1");
    EXPECT_EQ(html<TevoPublicationStyleFinder>("<j>Acta C</j><v></v><y>2001</y><p></p>"),
              "<i>Acta C</i> (, 2001), ");
}

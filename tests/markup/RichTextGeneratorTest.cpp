#include "markup/RichTextGenerator.h"

#include <gmock/gmock.h>

#include <iostream>
#include <sstream>
#include <stdexcept>

#include "fuzz/StyleLists.h"
#include "host/KOVRLog.h"
#include "markup/CifRichTextGenerator.h"
#include "markup/HtmlRichTextGenerator.h"
#include "markup/HtmlTagFactory.h"
#include "markup/QtRichTextGenerator.h"
#include "markup/TevoRichTextGenerator.h"
#include "markup/TextItemToTevoGreek.h"
#include "tests/Random.h"
#include "text/Position.h"

using testing::HasSubstr;
using testing::StrEq;
using testing::ThrowsMessage;

namespace {

template <class Styles, class Greek, class Replacements>
concept Data = std::is_constructible_v<RichTextData, std::string, unsigned int, Styles, Styles,
                                       Greek, Replacements>;
using Lists = RichTextData;
static_assert(Data<Lists::Styles&, const Lists::GreekStyles&, Lists::ReplacementTextStyles&>);
static_assert(!Data<Lists::Styles, Lists::GreekStyles&, Lists::ReplacementTextStyles&>);
static_assert(!Data<Lists::Styles&, Lists::GreekStyles, Lists::ReplacementTextStyles&>);
static_assert(!Data<Lists::Styles&, Lists::GreekStyles&, Lists::ReplacementTextStyles>);

/// The rules as they read: asks every style at every position.
class LiteralGenerator : public RichTextGenerator {
public:
    LiteralGenerator()
        : RichTextGenerator(make_handle<HtmlTagFactory>(), make_handle<TextItemToTevoGreek>()) {}

    std::string mark_up_text(const RichTextData& data) const override {
        const std::string text = data.text();
        std::string result;
        unsigned int column = 0;
        unsigned int covered_until = 0;
        for (unsigned int p = 0; p < text.size(); ++p) closing_tags(p);
        for (unsigned int i = 0; i < text.size(); ++i) {
            result += get_slice_tags(i, data.styles());
            std::string block;
            if (has_invisible_style(i, data.invisible())) {
                covered_until = current_invisible_style()->to();
            } else if (has_replacement_text_style(i, data.replacement_text())) {
                covered_until = current_replacement_text_style()->to();
                block = current_replacement_text_style()->replacement_text();
            } else if (has_greek_style(i, data.greek())) {
                covered_until = current_greek_style()->to();
                block = "mu";
            } else if (covered_until <= i) {
                block = text[i];
            }
            for (const char c : block) {
                result += c;
                if (data.line_length() != 0 && ++column % data.line_length() == 0) result += "<br>";
            }
        }
        return result + get_slice_tags(length_of(text), data.styles());
    }
};

/// The same target as the literal generator, by the road that is taken in earnest.
class FastGenerator : public RichTextGenerator {
public:
    FastGenerator()
        : RichTextGenerator(make_handle<HtmlTagFactory>(), make_handle<TextItemToTevoGreek>()) {}
};

/// Asks for the tags of some positions only.
class SparseGenerator : public FastGenerator {
public:
    std::string mark_up_text(const RichTextData& data) const override {
        std::string tags;
        for (const unsigned int position : {0U, 2U, 1U}) {
            tags += get_slice_tags(position, data.styles()) + '|';
        }
        return tags;
    }
};

}  // namespace

TEST(RichTextGenerator, KeepsTheTagsThatASubclassHasPassedOver) {
    EXPECT_EQ(SparseGenerator().mark_up_text(StyleLists().bold(0, 1).italic(0, 2).data("ab")),
              "<i><b>|</i>|</b>|");
}

TEST(RichTextGenerator, WritesTagsWhereStylesBeginAndEnd) {
    using S = StyleLists;
    const struct {
        const char* name;
        const char* text;
        StyleLists styles;
        const char* html;
    } cases[] = {
        {"nothing", "", S(), "<p>"},
        {"longer opens first", "abc", S().bold(0, 2).italic(0, 3), "<i><b>ab</b>c</i><p>"},
        {"equal ranges", "ab", S().bold(0, 1).italic(0, 1).subscript(0, 1),
         "<b><i><sub>a</sub></i></b>b<p>"},
        {"closes before it opens", "ab", S().bold(1, 2).italic(0, 1), "<i>a</i><b>b</b><p>"},
        {"empty style", "ab", S().bold(1, 1), "ab<p>"},
        {"crossing tags cross", "abc", S().bold(0, 2).italic(1, 3), "<b>a<i>b</b>c</i><p>"},
        {"never closed", "ab", S().bold(1, 3), "a<b>b<p>"},
        {"tags in a hidden range", "abcd", S().invisible(0, 3).bold(1, 2), "<b></b>d<p>"},
        {"empty covering swallows", "abcd", S().invisible(1, 1), "acd<p>"},
        {"inner covering ends outer", "abcde", S().invisible(0, 5).invisible(1, 2), "cde<p>"},
        {"hidden before replaced", "ab", S().replacement(0, 1).invisible(0, 1), "b<p>"},
    };
    HtmlRichTextGenerator generator;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(generator.mark_up_text(c.styles.data(c.text)), c.html);
    }
}

TEST(RichTextGenerator, EqualsTheLiteralRulesForAnyLists) {
    Random random(3);
    const LiteralGenerator literal;
    const FastGenerator fast;
    for (int round = 0; round < 20000; ++round) {
        const std::string text = std::string("abcdefghijkl").substr(0, random() % 13);
        const StyleLists styles = StyleLists::random(random, 14);
        const RichTextData data = styles.data(text, random() % 4);
        // Tags that the last text left open must not leak into the next.
        ASSERT_EQ(fast.mark_up_text(data), LiteralGenerator().mark_up_text(data)) << text << "\n"
                                                                                  << styles;
    }
    EXPECT_EQ(literal.mark_up_text(StyleLists().data("x")), "x");
}

TEST(RichTextGenerator, TheFourTargetsDifferAsTabled) {
    const StyleLists styles = StyleLists().subscript(0, 1).superscript(1, 2).greek(2, 3).bold(3, 4);
    const RichTextData data = styles.data("abcd");
    EXPECT_EQ(TevoRichTextGenerator().mark_up_text(data), "!a$$b!mud");
    EXPECT_EQ(CifRichTextGenerator().mark_up_text(data), "~a~^b^\\md");
    const std::string qt = "<sub>a</sub><sup>b</sup><font face=symbol>m</font><b>d</b>";
    EXPECT_EQ(QtRichTextGenerator().mark_up_text(data), qt);
    EXPECT_EQ(HtmlRichTextGenerator().mark_up_text(data), qt + "<p>");
}

TEST(RichTextGenerator, FailsAsHandlesAndConvertersFail) {
    const HtmlRichTextGenerator html;
    StyleLists with_null;
    with_null.styles.emplace_back();
    EXPECT_THAT([&] { html.mark_up_text(with_null.data("a")); },
                ThrowsMessage<std::runtime_error>(StrEq("null handle error")));
    StyleLists unknown;
    unknown.greek_styles.push_back(make_handle<GreekStyle>(TextItem::no_symbol));
    EXPECT_THAT([&] { html.mark_up_text(unknown.data("a")); },
                ThrowsMessage<std::range_error>(StrEq("Unknown sym. TextItemToHtmlGreek")));
    EXPECT_EQ(html.mark_up_text(StyleLists().bold(0, 1).data("a")), "<b>a</b><p>");
}

TEST(RichTextGenerator, WritesADebugLineAtLevelThree) {
    std::ostringstream log;
    std::streambuf* const before = std::clog.rdbuf(log.rdbuf());
    for (KOVRLog::level_ = 2; KOVRLog::level_ <= 3; ++KOVRLog::level_) {
        EXPECT_EQ(log.str(), "");
        TevoRichTextGenerator().mark_up_text(StyleLists().bold(0, 1).data("a"));
    }
    KOVRLog::level_ = 0;
    std::clog.rdbuf(before);
    EXPECT_THAT(log.str(),
                HasSubstr("RichTextGenerator::mark_up_text all styles[BoldStyle: From 0 To 1"));
}

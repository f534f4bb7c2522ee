#include "markup/Html5RichTextGenerator.h"

#include <gmock/gmock.h>

#include "fuzz/StyleLists.h"
#include "fuzz/shown_text.h"
#include "tests/Random.h"

namespace {

const std::string green = "<span style=\"color:#008b00\">";

}  // namespace

TEST(Html5RichTextGenerator, WritesWhatABrowserShows) {
    using S = StyleLists;
    StyleLists unknown_letter;
    unknown_letter.greek_styles.push_back(make_handle<GreekStyle>(TextItem::no_symbol));
    unknown_letter.greek_styles.back()->activate(0, 2);
    const struct {
        const char* name;
        const char* text;
        StyleLists styles;
        std::string html;
    } cases[] = {
        {"escaped", "a<b>&\"'", S(), "a&lt;b&gt;&amp;&quot;'"},
        {"escaped replacement", "ab", S().replacement(0, 1), "R&amp;Sb"},
        {"controls", "\x1[1m\x7f\xc2\x9b\t\r\n°\xff", S(), "&#1;[1m&#127;\uFFFD\t&#13;\n°\uFFFD"},
        {"direction of writing", "\u202Ea\u200E", S(), "&lt;U+202E&gt;a&lt;U+200E&gt;"},
        {"not UTF-8", "a\x9b\xe2\x82z\xf0\x9f\x98\xc3", S(), "a\uFFFD\uFFFDz\uFFFD\uFFFD"},
        {"letter", "mu!", S().greek(0, 2), "μ!"},
        {"unknown letter", "\\d-x", unknown_letter, "\\d-x"},
        {"UTF-8", "é€", S().bold(0, 2), "<b>é</b>€"},
        {"colours", "ab", S().color(0, 1).color(1, 2, TextItem::yellow4),
         green + "a</span><span style=\"color:#8b8b00\">b</span>"},
        {"crossing", "abcde", S().italic(0, 5).subscript(0, 5).bold(0, 3).color(1, 4),
         "<i><sub><b>a" + green + "bc</span></b></sub><sub>" + green + "d</span>e</sub></i>"},
        {"inside characters", "aéb€", S().bold(0, 2).italic(1, 5), "<b>a</b><i>éb</i>€"},
        {"beyond the end", "ab", S().bold(1, 9).italic(2, 4), "a<b>b</b>"},
    };
    Html5RichTextGenerator generator;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(generator.mark_up_text(c.styles.data(c.text)), c.html);
    }
}

TEST(Html5RichTextGenerator, BreaksLinesBetweenCharactersOnly) {
    const Html5RichTextGenerator generator;
    EXPECT_EQ(generator.mark_up_text(StyleLists().data("é<€é", 2)), "é&lt;<br>€é<br>");
    EXPECT_EQ(generator.mark_up_text(StyleLists().greek(0, 2).data("mu\xFF\x80", 1)),
              "μ<br>\uFFFD<br>\uFFFD<br>");
}

// Whatever the styles do, a browser must see the characters that are shown, in balanced tags.
TEST(Html5RichTextGenerator, TagsNestForAnyLists) {
    Random random(4);
    const Html5RichTextGenerator generator;
    for (int round = 0; round < 5000; ++round) {
        StyleLists styles = StyleLists::random(random, 10);
        const std::string html = generator.mark_up_text(styles.data("abcdefgh"));
        styles.styles.clear();
        ASSERT_EQ(html_text(html), html_text(generator.mark_up_text(styles.data("abcdefgh"))))
            << html;
    }
}

TEST(Html5RichTextGenerator, ManyCrossingStylesAreNotCutAtEveryEnd) {
    constexpr std::size_t styles = 4000;
    StyleLists sliding;
    for (unsigned int i = 0; i < styles; ++i) sliding.bold(i, i + 2000);
    const std::string html =
        Html5RichTextGenerator().mark_up_text(sliding.data(std::string(2 * styles, 'x')));
    EXPECT_LT(html.size(), 2 * styles + 7 * styles * 12);  // twelve tags a style, not thousands
}

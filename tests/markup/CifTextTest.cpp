#include <gmock/gmock.h>

#include <fstream>

#include "fuzz/cif_text_round_trips.h"
#include "markup/ascii_text.h"
#include "tests/Random.h"

namespace {

std::string unicode_of(const std::string& cif_text) {
    return written_by<UnicodeRichTextGenerator>({make_handle<CifTextStyleFinder>(), cif_text});
}

std::string cif_text_of(const std::string& unicode) {
    return written_by<CifTextRichTextGenerator>({make_handle<UnicodeTextStyleFinder>(), unicode});
}

struct Row {
    std::string kind, code, character;
};

/// The codes as the journals list them.
std::vector<Row> all_codes() {
    std::ifstream file(CIF_TEXT_CODES);
    std::vector<Row> rows;
    std::string rest;
    std::getline(file, rest);
    for (Row row; std::getline(file, row.kind, '\t') && std::getline(file, row.code, '\t') &&
                  std::getline(file, row.character, '\t') && std::getline(file, rest);) {
        rows.push_back(row);
    }
    return rows;
}

}  // namespace

TEST(CifText, EveryCodeIsReadAndWritten) {
    const std::vector<Row> rows = all_codes();
    ASSERT_EQ(rows.size(), 91U);
    for (const Row& row : rows) {
        const bool is_accent = row.kind == "accent", is_script = row.kind == "script";
        const std::string code = is_accent ? row.code + "q" : row.code;
        const std::string shown = is_accent ? "q" + row.character : row.character;
        if (is_script) {
            const std::string script = code == "~" ? "U₂" : "U²";
            EXPECT_EQ(unicode_of(cif_text_of(script)), script);
            EXPECT_EQ(cif_text_of(script).find(code), 1U);
            continue;
        }
        EXPECT_EQ(unicode_of(code), shown);
        const bool takes_blank = code.ends_with("b") && row.kind == "named";
        EXPECT_EQ(unicode_of(code + " C"), shown + (takes_blank ? "C" : " C"));
        EXPECT_EQ(cif_text_of(shown), shown == "=" ? "=" : code + (takes_blank ? " " : ""));
    }
}

TEST(CifText, ShowsWhatTheAuthorMeant) {
    const struct {
        std::string text, shown{}, doubts{};  // nothing shown: as it is
    } cases[] = {
        {"I.C\\'\\i \\\"\\?i \\'\\=u \\'e\\`A\\'z", "I.Cί ı̈ ū́ éÀź"},
        {"U~eq~ U~iso~ F^2^ 10^-3^ a~1^b^~", "U_{eq} Uᵢₛₒ F² 10⁻³ a_{1ᵇ}"},
        {"\\\\simeq\\\\simx\\\\db C5\\%A \\% a+-b-+c--d---e-----f", "≃∼x=C5Å ° a±b∓c–d—e-----f"},
        {"&lt;&amp;lt;&#181;&#x00B5;&alpha;&Omega;&quot;", "<&lt;µµαΩ\""},
        {"&#32;&#160;&#x202E;&#xD7FF;&#XE000;&#x00010FFFF;",
         " \u00A0<U+202E>\uD7FF\uE000\U0010FFFF"},
        {"\\\n\\%\\\na \\\\sim\\\neq \\\\sim\\\ne\\\nq &amp;l\\\nt; &lt;\\ \t\r\ni>",
         "°a ∼eq ∼eq &lt; <i>"},
        {"<i>N</i>-<b>b<sub>c</sub></b>", "N-b_{c}"},
        {"a\nR&D a<b <c> 5 < 6 & 7 &; &#; &#x000010FFFF;"},
        {"\\j a\\ b\\\\frac{} \\", "", "\\j \\ \\\\frac \\"},
        {"\\'@ \\'[ \\'` \\'{ \\'5 \\'× \\'÷ \\'¿ \\~", "", "\\' \\' \\' \\' \\' \\' \\' \\' \\~"},
        {"&Sigmaf; &#xD800; &#xdfff; &#1114112;", "", "&Sigmaf; &#xD800; &#xdfff; &#1114112;"},
        {"&#0; &#31; &#127; &#159; &#xfffffffff;", "", "&#0; &#31; &#127; &#159; &#xfffffffff;"},
        {"~5 a^b~c^ <i>d </b>", "_{5 a^b}c^ <i>d </b>", "^ ^ <i> </b>"},
        {"a~~b~", "", "~~ ~"},
        {"</i>x</i></b>x</b></sub>x</sub><sub>", "", "</i> </i></b> </b></sub> </sub><sub>"},
        {"\xFF\\'\xFF", "\uFFFD\\'\uFFFD", "\xFF \\' \xFF"},
    };
    for (const auto& test : cases) {
        const auto finder = make_handle<CifTextStyleFinder>();
        EXPECT_EQ(written_by<UnicodeRichTextGenerator>({finder, test.text}),
                  test.shown.empty() ? test.text : test.shown);
        std::string doubts;
        for (const CifTextStyleFinder::Doubt& doubt : finder->doubts()) {
            if (!doubts.empty()) doubts += ' ';
            doubts.append(test.text, doubt.place.from(), doubt.place.length());
        }
        EXPECT_EQ(doubts, test.doubts) << test.text;
        EXPECT_EQ(complaint_of_cif_text(test.text), "");
    }
}

TEST(CifText, IsWrittenSoThatNothingIsReadOtherwise) {
    const struct {
        std::string unicode, codes;
    } cases[] = {
        {"∼eq ∼x °a °C", "∼eq \\\\simx °a \\%C"},
        {"--- +- –- ±", "-&#x2D;- +&#x2D; –- +-"},
        {"\\a ~^ &lt; &x R&D <i> <j>", "&#x5C;a &#x7E;&#x5E; &amp;lt; &x R&D &lt;i> <j>"},
        {"Å ǖ ḗ ќ e\u0301 q\u0301", "\\%A \\=\\\"u \\'\\=e ќ e\u0301 \\'q"},
        {"x_{a^{b_{c}}}²^{2}", "x~a^b<sub>c</sub>^~^2^&#x5E;{2}"},
        {"P1̅ x²̅³̅ µ ∆ ς", "P1̅ x^2̅3̅^ \\m \\D ς"},
        {{'x', '\0'}, {'x', '\0'}},
    };
    for (const auto& test : cases) EXPECT_EQ(cif_text_of(test.unicode), test.codes);
}

TEST(CifText, ComesBackAsItWas) {
    std::vector<std::string> pieces = {"~",    "^",    "<i>", "</i>", "<sub>", "</sub>", "<b>",
                                       "</b>", "&lt;", "&",   "-",    "+",     "\\",     "a",
                                       "A",    "e",    "q",   " ",    "2",     "C",      "²",
                                       "₂",    "_{",   "^{",  "}",    "eq",    "\u0305", "\u0301"};
    for (const Row& row : all_codes()) {
        pieces.push_back(row.code);
        if (!row.character.empty()) pieces.push_back(row.character);
    }
    Random random(14);
    for (int i = 0; i < 30000; ++i) {
        const std::string text = random_text(random, pieces, 11);
        ASSERT_EQ(complaint_of_cif_text(text), "") << text;
    }
}

TEST(CifText, IsAsciiWhereThereAreCodes) {
    std::vector<std::string> letters = {"a", "A", "C", "e", "q", " ", "2", "-", "₂", "²", "⁻", "₊",
                                        "é", "ü", "ō", "à", "ñ", "ż", "â", "ą", "š", "ç", "ő", "ğ"};
    for (const Row& row : all_codes()) {
        if (row.kind == "script" || row.kind == "accent") continue;
        // Beside others of their kind, some would be read otherwise.
        const bool joins = row.code[0] != '\\' || row.code == "\\%" || row.code == "\\\\sim";
        letters.push_back(joins ? " " + row.character + " " : row.character);
    }
    Random random(15);
    for (int i = 0; i < 30000; ++i) {
        const std::string text = random_text(random, letters, 11);
        const std::string codes = cif_text_of(text);
        ASSERT_EQ(unicode_of(codes), text) << codes;
        ASSERT_EQ(first_beyond_ascii(codes), "") << codes;
    }
}

#include "tasks/DifferenceMarks.h"

#include <gmock/gmock.h>

#include "markup/DisplayedText.h"
#include "tasks/Source.h"
#include "tasks/row_named.h"
#include "tests/Random.h"

namespace {

TextItem item_of(const char* source, const std::string& text) {
    return {row_named(sources(), source)->make_finder(), text};
}

Finding finding(unsigned int from, unsigned int to, bool is_equivalent = false) {
    return {Finding::Reason::replacement, {from, to}, {from, to}, is_equivalent};
}

std::string marked(const char* target, const TextItem& item, const std::vector<Finding>& findings,
                   DifferenceMarks::Side side) {
    const RichTextTarget& row = *row_named(rich_text_targets(), target);
    return DifferenceMarks(row).marked(item, findings, side).mark_up_text(*row.make_generator());
}

}  // namespace

TEST(DifferenceMarks, AreWhatTheTargetCanShow) {
    const TextItem formula = item_of("formula", "C22 H40 N2");
    const struct {
        const char *target, *left, *right;
    } cases[] = {
        {"unicode", "C₂₂ [-H₄₀-] N₂", "C₂₂ {+H₄₀+} N₂"},
        {"cif", "C~22~ [-H~40~-] N~2~", "C~22~ {+H~40~+} N~2~"},
        {"tevo", "C!22$ [-H!40$-] N!2$", "C!22$ {+H!40$+} N!2$"},
        {"cif-text", "C~22~ <b>H~40~</b> N~2~", "C~22~ <b>H~40~</b> N~2~"},
        {"qt", "C<sub>22</sub> <b><font color=red>H<sub>40</sub></font></b> N<sub>2</sub>",
         "C<sub>22</sub> <b><font color=green4>H<sub>40</sub></font></b> N<sub>2</sub>"},
        {"ansi", "C₂₂ \x1b[1m\x1b[91mH₄₀\x1b[22m\x1b[39m N₂",
         "C₂₂ \x1b[1m\x1b[32mH₄₀\x1b[22m\x1b[39m N₂"},
    };
    for (const auto& [target, left, right] : cases) {
        EXPECT_EQ(marked(target, formula, {finding(4, 7)}, DifferenceMarks::left), left);
        EXPECT_EQ(marked(target, formula, {finding(4, 7)}, DifferenceMarks::right), right);
    }
}

TEST(DifferenceMarks, CutNoCodesAndCrossStyles) {
    const struct {
        const char *name, *source, *text;
        std::vector<Finding> findings;
        const char *qt, *unicode;
    } cases[] = {
        {"nothing there", "plain", "abc", {finding(1, 1)}, "abc", "abc"},
        {"within a script",
         "formula",
         "C22",
         {finding(2, 3)},
         "C<sub><b><font color=red>22</font></b></sub>",
         "C[-₂₂-]"},
        {"within a Greek word",
         "tevo-name",
         "alpha-x",
         {finding(1, 6)},
         "<b><font color=red><font face=symbol>a</font>-</font></b>x",
         "[-α--]x"},
        {"within a character",
         "plain",
         "a\u00E9b",
         {finding(2, 3)},
         "a<b><font color=red>\u00E9</font></b>b",
         "a[-\u00E9-]b"},
        {"across styles",
         "cif-text",
         "<i>ab</i>cd",
         {finding(4, 10)},
         "<i>a<b><font color=red>b</font></b></i><b><font color=red>c</font></b>d",
         "a[-bc-]d"},
        {"in bold",
         "cif-text",
         "<b>abc</b>",
         {finding(4, 5)},
         "<b>a<font color=red>b</font>c</b>",
         "a[-b-]c"},
        {"side by side, of two kinds",
         "plain",
         "abc",
         {finding(0, 1), finding(1, 2, true)},
         "<b><font color=red>a</font></b><b><font color=blue>b</font></b>c",
         "[-ab-]c"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const TextItem item = item_of(c.source, c.text);
        EXPECT_EQ(marked("qt", item, c.findings, DifferenceMarks::left), c.qt);
        EXPECT_EQ(marked("unicode", item, c.findings, DifferenceMarks::left), c.unicode);
    }
}

TEST(DifferenceMarks, NeverThrowAndLeaveTheText) {
    const std::pair<const char*, const char*> texts[] = {
        {"cif-text", "\\a-<i>b~2~</i> <b>\\'e</b> &lt; \\\\times ^<i>3</i>^\u00E9"},
        {"tevo-name", "mu!3$-alpha $2!D beta"},
        {"reference", "<j>Acta</j><v>57</v><y>2001</y><p>1</p>"},
        {"spacegroup", "P<bar>1</bar>2<sub>1</sub>"},
    };
    Random random(3);
    for (const auto& [source, text] : texts) {
        const TextItem item = item_of(source, text);
        const auto length = static_cast<unsigned int>(item.characters().size());
        for (int round = 0; round < 300; ++round) {
            std::vector<Finding> findings;
            for (unsigned int at = random() % length; at < length;) {
                const unsigned int end = at + random() % (length - at + 1);
                findings.push_back(finding(at, end, random() % 2 == 0));
                at = end + random() % 4 + 1;
            }
            const DifferenceMarks styles(*row_named(rich_text_targets(), "html5"));
            const TextItem styled = styles.marked(item, findings, DifferenceMarks::left);
            EXPECT_EQ(DisplayedText(styled).text(), DisplayedText(item).text());
            EXPECT_NO_THROW(marked("unicode", item, findings, DifferenceMarks::right));
        }
    }
}

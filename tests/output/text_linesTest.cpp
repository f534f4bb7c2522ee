#include "output/text_lines.h"

#include <gmock/gmock.h>

#include "tasks/Field.h"
#include "tasks/View.h"
#include "tasks/row_named.h"

namespace {

ProcessedTexts converted(const char* from, const char* to, const std::string& texts,
                         char separator = '\n') {
    ConvertOptions options;
    options.from = row_named(sources(), from);
    options.to = row_named(rich_text_targets(), to);
    return process_texts(texts, separator, 1, [&] { return make_conversion(options); });
}

}  // namespace

TEST(Conversion, WritesEachTextForEachTarget) {
    const std::string text = "alpha-D-gluco!2$-kappa$2!N";
    const std::pair<const char*, const char*> cases[] = {
        {"cif", "\\a-D-gluco~2~-\\k^2^N\n"},
        {"html5", "α-D-gluco<sub>2</sub>-κ<sup>2</sup>N\n"},
        {"latex", "$\\alpha$-D-gluco\\textsubscript{2}-$\\kappa$\\textsuperscript{2}N\n"},
        {"markdown", "α-D-gluco<sub>2</sub>-κ<sup>2</sup>N\n"},
        {"unicode", "α-D-gluco₂-κ²N\n"},
    };
    for (const auto& [target, output] : cases) {
        EXPECT_EQ(converted("tevo-name", target, text).output, output);
    }
    EXPECT_EQ(converted("plain", "html5", std::string("<a>\0b", 5), '\0').output,
              std::string("&lt;a&gt;\0b\0", 12));
}

TEST(Conversion, ATextThatFailsHoldsItsPlace) {
    const ProcessedTexts done = converted("cif-name", "tevo", "C~2~\n~a^b~c^\na\\dx\n\xFF\xFE~3~");
    EXPECT_EQ(done.output, "C!2$\n\nax\n\xFF\xFE!3$\n");
    EXPECT_FALSE(done.good);
    ASSERT_EQ(done.problems.size(), 3U);
    EXPECT_EQ(done.problems[0].line, 2U);
    EXPECT_EQ(done.problems[0].what, "creating an overlapping style error");
    EXPECT_EQ(done.problems[0].level, Problem::Level::error);
    EXPECT_EQ(done.problems[1].line, 3U);
    EXPECT_EQ(done.problems[1].what, "Greek code without a letter");
    EXPECT_EQ(done.problems[1].level, Problem::Level::warning);
    EXPECT_EQ(done.problems[2].what, "tevo has no code for");
    EXPECT_EQ(done.problems[2].level, Problem::Level::note);
    EXPECT_TRUE(converted("cif-name", "tevo", "a\\dx").good);
}

TEST(Conversion, NotesWhatATargetLacksAndWritesAsciiAlone) {
    const struct {
        const char *to, *text, *output, *ascii;
        std::vector<std::string> notes;
    } cases[] = {
        {"tevo",
         "β-P1̅ é",
         "beta-P1 é",
         "beta-P1 e",
         {"tevo has no bars", "tevo has no code for é"}},
        {"tevo", "4′–x²", "4′–x$2!", "4'-x$2!", {"tevo has no code for ′"}},
        {"tevo",
         "ø ß × Åλ Ω č ﬀ",
         "ø ß × Ålambda Ω č ﬀ",
         "o ss x Alambda Omega c ?",
         {"tevo has no code for ø"}},
        {"cif-text", "β∼eq", "\\b∼eq", "\\b&#x223C;eq", {"cif-text has no code for ∼"}},
        {"html5", "é<", "é&lt;", "&#xE9;&lt;", {}},
    };
    for (const auto& c : cases) {
        ConvertOptions options;
        options.from = row_named(sources(), "unicode");
        options.to = row_named(rich_text_targets(), c.to);
        std::vector<std::string> notes;
        const auto process = [&] { return make_conversion(options); };
        const ProcessedTexts done = process_texts(c.text, '\n', 1, process);
        for (const Problem& p : done.problems) {
            notes.push_back(p.what + (p.found.empty() ? "" : " " + p.found));
            EXPECT_EQ(p.level, Problem::Level::note);
        }
        EXPECT_EQ(done.output, c.output + std::string("\n"));
        EXPECT_EQ(notes, c.notes);
        options.ascii = ascii_form_of(*options.to);
        EXPECT_EQ(process_texts(c.text, '\n', 1, process).output, c.ascii + std::string("\n"));
    }
    EXPECT_EQ(ascii_form_of(*row_named(rich_text_targets(), "latex")), nullptr);
}

TEST(Search, TellsPlacesOfTheTextOrOfWhatIsShown) {
    const std::pair<TextPositions, const char*> cases[] = {
        {{DisplayedText::bytes, false}, "false\t4-10\n"},
        {{DisplayedText::bytes, true}, "false\t4-9\n"},
        {{DisplayedText::characters, true}, "false\t1-5\n"},
        {{DisplayedText::utf16, true}, "false\t2-6\n"}};
    SearchOptions options;
    options.how = row_named(search_kinds(), "substring");
    options.term = "\u00E1rov";
    options.from = row_named(sources(), "cif-text");
    options.to = row_named(search_outputs(), "slices");
    for (const auto& [positions, output] : cases) {
        options.positions = positions;
        EXPECT_EQ(
            process_texts("\U0001D538\\'arov\\'a", '\n', 1, [&] { return make_search(options); })
                .output,
            output);
    }
}

TEST(Search, WritesEachTextWithItsMatches) {
    const struct {
        const char *how, *term, *tolerance, *from, *to;
        unsigned int min_length;
        bool only_matching;
        const char *texts, *output;
        bool matched;
    } cases[] = {
        {"substring", "D-gluco", "0", "tevo-name", "html5", 3, false, "alpha-D gluco!2$\nxylose\n",
         "α-<b><span style=\"color:blue\">D gluco</span></b><sub>2</sub>\nxylose\n", true},
        {"exact", "a&b", "0", "plain", "html5", 3, true, "a\na&b\n",
         "<b><span style=\"color:#008b00\">a&amp;b</span></b>\n", true},
        {"numeric", "1.5 2", "1", "plain", "slices", 3, false, "2.6(2)\n2.5 +2\n",
         "false\t4-5\ntrue\t0-3\t4-6\n", true},
        {"numeric", "1.5", "0.25", "plain", "slices", 3, false, "1.25\n1.2\n", "true\t0-4\nfalse\n",
         true},
        {"surnames", "B.Jones, A.Smith", "0", "plain", "slices", 3, false, "C.Smith, B.Jones\n",
         "false\t2-7\t9-16\n", true},
        {"publication", "<j>A</j>", "0", "plain", "html5", 3, false, "<j>A</j>\n",
         "&lt;j&gt;<b><span style=\"color:#008b00\">A</span></b>&lt;/j&gt;\n", true},
        {"publication", "<j>A</j>", "0", "plain", "slices", 3, true, "none\n</j><j>\n", "", false},
        {"publication", "<j>x", "0", "plain", "html5", 3, false, "</j><j>\n<v>\n", "\n&lt;v&gt;\n",
         true},
        {"substring", "abcd", "0", "plain", "slices", 2, false, "cdxab\n", "false\t0-2\t3-5\n",
         true},
        {"lines", "b", "0", "plain", "slices", 3, false, "a\nb", "false\ntrue\t0-1\n", true},
    };
    for (const auto& c : cases) {
        SearchOptions options;
        options.how = row_named(search_kinds(), c.how);
        options.settings = {c.tolerance, c.min_length};
        options.term = c.term;
        options.from = row_named(sources(), c.from);
        options.to = row_named(search_outputs(), c.to);
        options.only_matching = c.only_matching;
        const ProcessedTexts done =
            process_texts(c.texts, '\n', 1, [&] { return make_search(options); });
        EXPECT_EQ(done.output, c.output) << c.how;
        EXPECT_EQ(done.matched, c.matched) << c.how;
        EXPECT_EQ(done.good, std::string(c.texts).find("</j><j>") == std::string::npos);
    }
    EXPECT_FALSE(row_named(search_kinds(), "numeric")->takes("gluco"));
    EXPECT_EQ(fields_named("Z, Z',Color").at(0).source->name, std::string("z"));
}

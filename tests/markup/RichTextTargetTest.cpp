#include "markup/RichTextTarget.h"

#include <gmock/gmock.h>

#include "fuzz/StyleLists.h"
#include "fuzz/shown_text.h"
#include "tests/Random.h"
#include "text/Position.h"

namespace {

using S = StyleLists;

THandle<RichTextGenerator> generator_named(std::string_view name) {
    for (const RichTextTarget& target : rich_text_targets()) {
        if (name == target.name) return target.make_generator();
    }
    return {};
}

std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from)) {
        result += text.substr(0, at);
        result += to;
        text.remove_prefix(at + from.size());
    }
    return result.append(text);
}

/// LaTeX without its groups, or a complaint where they do not nest.
std::string without_groups(std::string latex) {
    latex = replaced(latex, "$\\mu$", "M");
    for (const char* command : {"\\textbf{", "\\textit{", "\\textsuperscript{",
                                "\\textcolor[rgb]{0,0.545,0}{", "$\\overline{\\mbox{"}) {
        latex = replaced(latex, command, "{");
    }
    latex = replaced(latex, "}}$", "}");
    int depth = 0;
    for (const char c : latex) {
        depth += (c == '{') - (c == '}');
        if (depth < 0) return "closed twice";
    }
    return depth == 0 ? replaced(replaced(latex, "{", ""), "}", "") : "left open";
}

struct Case {
    const char* name;
    std::string text;
    StyleLists styles;
    std::string mark_up;
    unsigned int line_length = 0;
};

void check(const char* target, const std::vector<Case>& cases) {
    const auto generator = generator_named(target);
    for (const Case& c : cases) {
        EXPECT_EQ(generator->mark_up_text(c.styles.data(c.text, c.line_length)), c.mark_up)
            << target << ": " << c.name;
    }
}

const std::string blue_on = "\x1b[94m", green_on = "\x1b[32m", color_off = "\x1b[39m";

}  // namespace

TEST(RichTextTarget, LatexIsEscaped) {
    check("latex",
          {{"the ten", "#$%&_{}~^\\", S(),
            "\\#\\$\\%\\&\\_\\{\\}\\textasciitilde{}\\textasciicircum{}\\textbackslash{}"},
           {"other signs", "a<b>|\"`", S(),
            "a\\textless{}b\\textgreater{}\\textbar{}\\symbol{34}\\textasciigrave{}"},
           {"ligatures", "1''--,,", S(), "1'{}'-{}-,{},"},
           {"ligature over what is hidden", "-x-", S().invisible(1, 2), "-{}-"},
           {"argument of a row end", "[2,3]*", S(), "{[}2,3]*"},
           {"spaces", " a  b ", S().bold(2, 4), "\\ a\\textbf{\\ \\ }b\\ "},
           {"bytes and controls", "\x1b\xff\xc2\x85\u202Eé\n", S(),
            "\\textless{}1B\\textgreater{}\\textless{}FF\\textgreater{}\\textless{}85"
            "\\textgreater{}\\textless{}202E\\textgreater{}é\\leavevmode\\newline{}"},
           {"styles", "abcdmu",
            S().bold(0, 1).italic(1, 2).superscript(2, 3).subscript(3, 6).greek(4, 6),
            "\\textbf{a}\\textit{b}\\textsuperscript{c}\\textsubscript{d$\\mu$}"},
           {"bar and colour", "ab", S().bar(0, 1).color(1, 2),
            "$\\overline{\\mbox{a}}$\\textcolor[rgb]{0,0.545,0}{b}"},
           {"crossing", "abc", S().bold(0, 2).italic(1, 3), "\\textbf{a\\textit{b}}\\textit{c}"},
           {"lines", "$mu%", S().greek(1, 3), "\\$\\newline{}$\\mu$\\newline{}\\%\\newline{}", 1}});
}

TEST(RichTextTarget, MarkdownIsEscapedAndItsStarsCount) {
    S of_two_bytes;
    for (unsigned int from = 0; from < 30; from += 3) of_two_bytes.bold(from, from + 2);
    check("markdown",
          {{"punctuation", "\\`*_[]<>&~|$", S(), "\\\\\\`\\*\\_\\[\\]\\<\\>\\&\\~\\|\\$"},
           {"no punctuation", ")(2-4).5'+#,-=!", S(), ")(2-4).5'+#,-=!"},
           {"begin of a line", "#11=11- 1", S(), "\\#11<br>\n\\=11<br>\n\\- 1<br>\n", 3},
           {"number of an item", "12. a", S(), "12\\. a"},
           {"not the number of an item", "-12.5", S(), "-12.5"},
           {"layout", " a\n  b\t ", S(), "&#32;a&#10;  b&#9;&#32;"},
           {"controls", "\x1b[1m\x7f\xc2\x9b°", S(), "&#27;\\[1m&#127;&#155;°"},
           {"direction of writing", "\u202Eab", S(), "\\<U+202E\\>ab"},
           {"not UTF-8", "\x9b\xe2\x82+\xff-", S(), "\uFFFD\uFFFD+\uFFFD-"},
           {"addresses", "http://a.b//c WWW.a.b mailto:a@b.c www,a:b/c a. @b", S(),
            "http:/<span>/</span>a.b/<span>/</span>c WWW<span>.</span>a.b "
            "mailto<span>:</span>a<span>@</span>b.c www,a:b/c a. @b"},
           {"address over what is hidden", "www-.a", S().invisible(3, 4), "www<span>.</span>a"},
           {"stars", "ab cd", S().bold(0, 2).italic(3, 5), "**ab** *cd*"},
           {"stars in a word", "abc", S().bold(1, 2), "a**b**c"},
           {"stars that would not count", "a(b)c", S().bold(1, 4), "a<strong>(b)</strong>c"},
           {"stars beside what are surely letters", "¿ À × ÷ ɏ ɐ ΐ Α ω ϊ", of_two_bytes,
            "<strong>¿</strong> **À** <strong>×</strong> <strong>÷</strong> **ɏ** "
            "<strong>ɐ</strong> <strong>ΐ</strong> **Α** **ω** <strong>ϊ</strong>"},
           {"stars beside a space", "a b", S().italic(1, 3), "a<em> b</em>"},
           {"stars side by side", "abc", S().bold(0, 2).italic(0, 1).italic(2, 3),
            "<strong><em>a</em>b</strong><em>c</em>"},
           {"letter", "mu a", S().greek(0, 2).bold(0, 2), "**μ** a"},
           {"bold in bold", "abc", S().bold(0, 3).bold(1, 2), "**abc**"},
           {"what Markdown lacks", "ab", S().subscript(0, 1).bar(1, 2),
            "<sub>a</sub><span style=\"text-decoration:overline\">b</span>"},
           {"lines", "*- mu", S().greek(3, 5), "\\*-<br>\n&#32;μ<br>\n", 2}});
}

TEST(RichTextTarget, UnicodeRaisesAndLowersWholeRuns) {
    check("unicode", {{"characters", "C2H5x2+",
                       S().subscript(1, 2).subscript(3, 4).superscript(5, 7), "C₂H₅x²⁺"},
                      {"no character for one", "x2,3y", S().subscript(1, 4), "x_{2,3}y"},
                      {"letter", "xmu", S().superscript(1, 3).greek(1, 3), "x^{μ}"},
                      {"script in script", "ab2", S().superscript(1, 3).subscript(2, 3), "a^{b₂}"},
                      {"bar", "-1a2", S().bar(0, 2).subscript(1, 2), "-̅₁̅a2"},
                      {"other styles", "a$b\x1b\t\xff", S().bold(0, 1).color(1, 3), "a$b␛\t\uFFFD"},
                      {"direction of writing", "a\u061C2", S().subscript(1, 4), "a_{<U+061C>2}"},
                      {"lines", "a2b,c\nd\u0301e", S().bar(0, 1).subscript(1, 2).subscript(2, 5),
                       "a̅₂\n_{\nb,\nc}\n\nd\u0301e\n", 2}});
}

TEST(RichTextTarget, AnsiSelectsWhatALineNeedsAndResetsIt) {
    check("ansi",
          {{"controls", "\x1b[1m\x7f\t\xc2\x9b\xff\n", S(), "␛[1m␡␉\uFFFD\uFFFD\n"},
           {"direction of writing", "\u202Ea\u2069\u200F", S(), "<U+202E>a<U+2069><U+200F>"},
           {"styles", "abcd", S().bold(0, 1).italic(1, 2).bar(2, 3),
            "\x1b[1ma\x1b[22m\x1b[3mb\x1b[23m\x1b[4mc̅\x1b[24md"},
           {"colour in colour", "abc", S().color(0, 3).color(1, 2, TextItem::blue),
            green_on + "a" + blue_on + "b" + green_on + "c\x1b[0m"},
           {"crossing and nothing", "abcd", S().bold(0, 2).color(1, 3).italic(2, 2).bold(0, 1),
            "\x1b[1ma" + green_on + "b\x1b[22mc" + color_off + "d"},
           {"line of the text", "a\nb", S().bold(0, 3), "\x1b[1ma\x1b[0m\n\x1b[1mb\x1b[0m"},
           {"lines", "abc2", S().bold(1, 4).subscript(3, 4), "a\x1b[1mb\x1b[0m\n\x1b[1mc₂\x1b[0m\n",
            2}});
}

TEST(RichTextTarget, NothingOfATextActsWhereItIsShown) {
    std::vector<std::string> units;
    units.reserve(0x2100 + 0x80);
    for (int byte = 0; byte < 256; ++byte) units.emplace_back(1, static_cast<char>(byte));
    for (char32_t code = 0x80; code < 0x2100; ++code) append_utf8(units.emplace_back(), code);
    for (const std::string name : {"ansi", "unicode", "html5", "markdown", "latex"}) {
        const auto generator = generator_named(name);
        for (const std::string& c : units) {
            // Bytes make one character when what stands between them is hidden.
            const unsigned int size = length_of(c);
            std::string text;
            for (const std::string_view piece :
                 {std::string_view(c), {"a\xC2"}, {c}, {c}, {"\xC2x"}, {c}, {"\xE2\x80x"}, {c}}) {
                text += piece;
            }
            std::string shown = generator->mark_up_text(S().bold(size, size + 2)
                                                            .superscript(size + 2, 2 * size + 2)
                                                            .subscript(2 * size + 2, 3 * size + 2)
                                                            .bar(2 * size + 2, 3 * size + 2)
                                                            .invisible(3 * size + 3, 3 * size + 4)
                                                            .invisible(4 * size + 6, 4 * size + 7)
                                                            .data(text));
            if (name == "ansi") shown = terminal_text(shown);
            for (std::size_t i = 0; i < shown.size();) {
                const Utf8Character character = first_character(std::string_view(shown).substr(i));
                const bool layout = character.code == '\t' || character.code == '\n';
                ASSERT_TRUE(character.valid && (layout || !acts(character.code)))
                    << name << ": " << text;
                i += character.size;
            }
        }
    }
}

// Whatever the styles do, the text must be the same as without them, or as plain text has it.
TEST(RichTextTarget, TagsNestForAnyLists) {
    Random random(5);
    const auto latex = generator_named("latex"), ansi = generator_named("ansi");
    const auto unicode = generator_named("unicode");
    for (int round = 0; round < 5000; ++round) {
        StyleLists styles = StyleLists::random(random, 10);
        const unsigned int line_length = random() % 4;
        ASSERT_EQ(terminal_text(ansi->mark_up_text(styles.data("abcdefgh", line_length))),
                  unicode->mark_up_text(styles.data("abcdefgh", line_length)))
            << styles;
        const std::string tagged = latex->mark_up_text(styles.data("abcdefgh"));
        styles.styles.clear();
        ASSERT_EQ(without_groups(tagged),
                  without_groups(latex->mark_up_text(styles.data("abcdefgh"))))
            << tagged;
    }
}

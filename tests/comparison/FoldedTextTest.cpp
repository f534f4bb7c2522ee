#include "comparison/FoldedText.h"

#include <gmock/gmock.h>

#include <array>

#include "tests/Random.h"
#include "text/Position.h"

namespace {

constexpr Folding nothing{false, false, false, false, false, false, false};

/// With one of the kinds of folding alone.
Folding only(bool Folding::*kind) {
    Folding folding = nothing;
    folding.*kind = true;
    return folding;
}

constexpr std::array all_kinds = {&Folding::letter_case, &Folding::accents, &Folding::dashes,
                                  &Folding::apostrophes, &Folding::blanks,  &Folding::greek,
                                  &Folding::forms,       &Folding::umlauts};

TEST(FoldedText, FoldsWhatItsKindSays) {
    const struct {
        bool Folding::*kind;
        const char *text, *folded;
    } cases[] = {
        {&Folding::letter_case, "ÉaSß ẞΣς", "e\u0301asss ssσσ"},
        {&Folding::accents, "Císařová Å Łódź øðÞœŒıħß", "Cisarova A Lodz odThoeOEihss"},
        {&Folding::accents, "ΐ й a\u0304 a\u20D7", "ι и a a"},
        {&Folding::accents, "5\u0305 ≠ \u0301x कि", "5\u0305 =\u0338 \u0301x कि"},
        {&Folding::dashes, "a‐b–c—d−e co\u00ADop", "a-b-c-d-e coop"},
        {&Folding::apostrophes, "2′,2″‴ “x” `´ʼ", "2',2''''' ''x'' '''"},
        {&Folding::blanks, " a \r\n\t\u00A0b\u2009c ", " a b c "},
        {&Folding::greek, "αΒ ς ϑϕϵµ ά Δ", "alphaBeta sigma thetaphiepsilonmu alpha\u0301 Delta"},
        {&Folding::forms, "x²₃ ﬁ Ａ µ ½ 1\u0305 \u200Bé", "x23 fi A μ 1/2 -1 e\u0301"},
        {&Folding::forms, "¨ ⁻ •", "¨ − ·"},
        {&Folding::umlauts, "Müller ï Ü", "Mueller i\u0308 Ue"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(folded(c.text, only(c.kind)), c.folded) << c.text;
    }
    EXPECT_EQ(folded("  Β-D-Gluco­pyra\nnosyl Ü⁺ ℌ", {}), " beta-d-glucopyra nosyl u+ h");
}

/// All ways to fold: each kind alone, all but it, none and all.
std::vector<Folding> foldings() {
    std::vector<Folding> all = {nothing, {}};
    for (const auto kind : all_kinds) {
        all.push_back(only(kind));
        all.emplace_back().*kind ^= true;
    }
    return all;
}

TEST(FoldedText, FoldsCanonicallyEquivalentTextsAlike) {
    const char* const pairs[][2] = {
        {"é", "e\u0301"},
        {"\u212B", "A\u030A"},
        {"ǖ", "u\u0308\u0304"},
        {"ậ", "a\u0302\u0323"},
        {"각", "\u1100\u1161\u11A8"},
        {"\u1FEF", "`"},
        {"\u2000", "\u2002"},
        {"ᾴ", "α\u0345\u0301"},
        {"≠", "=\u0338"},
        {"\u037E", ";"},
        {"\u2126", "Ω"},
    };
    for (const Folding& folding : foldings()) {
        for (const auto& [a, b] : pairs) EXPECT_EQ(folded(a, folding), folded(b, folding)) << a;
    }
}

constexpr const char* characters[] = {
    "a", "B", " ", "\"", "`",    "2",     "-",      "e\u0301", "É",       "ß",
    "β", "Σ", "…", "\n", "\xC3", "\xE2",  "\u00AD", "n\u0303", "1\u0305", "i\u0307\u0323",
    "″", "ﬁ", "Ü", "\0", "字",   "\u200B"};

/// Each character folded by itself; runs of blanks are not the slow way's business.
TEST(FoldedText, IsWhatItsCharactersAreFoldedTo) {
    Random random(1);
    for (const Folding& folding : foldings()) {
        for (int i = 0; i < 300; ++i) {
            std::string text, expected;
            std::vector<StringSlice> in_text, in_folded;
            for (unsigned int n = random() % 12; n-- > 0;) {
                const std::string c = characters[random() % std::size(characters)];
                if ((c == " " || c == "\n") && (text.ends_with(' ') || text.ends_with('\n'))) {
                    continue;
                }
                const auto from = length_of(text), folded_from = length_of(expected);
                text += c;
                expected += folded(c, folding);
                in_text.emplace_back(from, length_of(text));
                in_folded.emplace_back(folded_from, length_of(expected));
            }
            const FoldedText folded_text(text, folding);
            ASSERT_EQ(folded_text.text(), expected) << text;
            for (std::size_t k = 0; k < in_text.size(); ++k) {
                const StringSlice& range = in_folded[k];
                for (unsigned int at = range.from(); at < range.to(); ++at) {
                    EXPECT_EQ(folded_text.in_text({at, at + 1}), in_text[k]) << text;
                    EXPECT_EQ(folded_text.is_boundary(at), at == range.from()) << text;
                    EXPECT_EQ(folded_text.in_text({in_folded[0].from(), at + 1}).to(),
                              in_text[k].to());
                }
            }
            EXPECT_TRUE(folded_text.is_boundary(length_of(expected)));
        }
    }
}

TEST(FoldedText, MakesOneCharacterOfBlanksAndOfMarks) {
    const FoldedText blanks("a \n\u00A0 b", {});
    EXPECT_EQ(blanks.in_text({1, 2}), StringSlice(1, 6));
    std::string marks = "ae";
    for (int i = 0; i < 100'000; ++i) marks += "\u0301";
    marks += "b";
    const FoldedText marked(marks, {});
    EXPECT_EQ(marked.text(), "aeb");
    EXPECT_EQ(marked.in_text({1, 2}), StringSlice(1, length_of(marks) - 1));
}

}  // namespace

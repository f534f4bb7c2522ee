#include "output/finding_sentences.h"

#include <gmock/gmock.h>

#include "finders/InputTextStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "text/Position.h"

using Reason = Finding::Reason;

namespace {

TextItem plain(const std::string& text) { return {make_handle<InputTextStyleFinder>(), text}; }

/// Of a finding that is about all of both texts.
Finding whole(Reason reason, const std::string& left, const std::string& right) {
    return {reason, {0, length_of(left)}, {0, length_of(right)}};
}

}  // namespace

TEST(FindingSentences, SayWhatDiffersInOneClause) {
    const struct {
        Reason reason;
        std::string left, right;
        const char* clause;
        std::string subject = {};
        std::optional<double> left_number = {}, right_number = {}, sigmas = {}, limit = {};
    } cases[] = {
        {Reason::replacement, "ab", "cd", "'ab' against 'cd'"},
        {Reason::insertion, "", "di", "'di' added"},
        {Reason::blank, " ", "", "blank left out"},
        {Reason::blank, " ", "\n\n", "other blanks"},
        {Reason::punctuation, ",", "", "',' left out"},
        {Reason::dash, "", "\u2013", "dash '\u2013' added"},
        {Reason::accent, "ö", "o", "'ö' has another accent than 'o'"},
        {Reason::coding, "é", "e\u0301", "'é' is coded otherwise"},
        {Reason::number_within_limit, "10.001(2)", "10.0012(15)",
         "a: 10.001(2) against 10.0012(15), 0.08 σ apart", "a", 10.001, 10.0012, .08, 3},
        {Reason::number_beyond_limit,
         "5",
         "6",
         "5 against 6, 1 apart, beyond 0.5",
         "",
         5,
         6,
         {},
         .5},
        {Reason::number_beyond_limit, "5(1)", "10(1)",
         "5(1) against 10(1), 3.5 σ apart, beyond 3 σ", "", 5, 10, 3.54, 3},
        {Reason::number_beyond_limit, "5(1)", "900(1)", "5(1) against 900(1), 633 σ apart", "", 5,
         900, 632.9},
        {Reason::number_missing, ", 0.3 mm", "", "0.3 mm left out", "", .3},
        {Reason::element, "H40", "H39", "H 40 against 39", "H", 40, 39},
        {Reason::element, "Cl", "", "Cl 1 against none", "Cl", 1, 0},
        {Reason::charge, "", "", "charge of C6 H6 +1 against -2", "C6 H6", 1, -2},
        {Reason::author_moved, "A.J.Smith", "A.J.Smith", "A.J.Smith moved from 2nd to 13th place",
         "A.J.Smith", 2, 13},
        {Reason::author_added, "", "B.Roy", "B.Roy added in 21st place", "B.Roy", {}, 21},
        {Reason::first_page, "12", "15", "first page 12 against 15"},
        {Reason::volume, "", "7", "volume '7' added"},
        {Reason::deletion, std::string(50, 'x'), "",
         "'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…' left out"},
    };
    for (const auto& c : cases) {
        const TextItem left_item = plain(c.left), right_item = plain(c.right);
        const ComparedText left(left_item), right(right_item);
        Finding finding = whole(c.reason, c.left, c.right);
        finding.subject = c.subject;
        finding.left_number = c.left_number;
        finding.right_number = c.right_number;
        finding.sigmas = c.sigmas;
        finding.limit = c.limit;
        EXPECT_EQ(FindingSentences(left, right).clause(finding), c.clause);
    }
}

TEST(FindingSentences, ShowBars) {
    const TextItem left(make_handle<SpaceGroupStyleFinder>(), "P<bar>3</bar>m1");
    const TextItem right = plain("P1");
    const ComparedText left_side(left), right_side(right);
    const Finding finding{Reason::group, {0, length_of(left.characters())}, {0, 2}};
    EXPECT_EQ(FindingSentences(left_side, right_side).clause(finding), "P3\u0305m1 against P1");
}

TEST(FindingSentences, NameTheFirstFewAndWhatCountsBeforeTheRest) {
    const TextItem item = plain("abcdef");
    const ComparedText text(item);
    std::vector<Finding> findings;
    for (unsigned int i = 0; i < 3; ++i) {
        findings.push_back({Reason::deletion, {i, i + 1}, {i, i}});
    }
    findings[0].is_equivalent = true;
    findings[1].is_coarse = true;
    const FindingSentences sentences(text, text);
    EXPECT_EQ(sentences.reasons(findings),
              "'b' left out (less may differ); 'c' left out; equivalent: 'a' left out");
    findings.insert(findings.end(), 4, findings[2]);
    EXPECT_THAT(sentences.reasons(findings), testing::EndsWith("'c' left out and 2 more"));
}

#include "comparison/TextComparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <ostream>
#include <string>
#include <vector>

#include "finders/CifFormulaStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "markup/Utf8.h"
#include "tests/Random.h"
#include "text/Position.h"

void PrintTo(const Finding& finding, std::ostream* os) {
    *os << reason_of(finding).name << " [" << finding.left << "] [" << finding.right << "] "
        << finding.subject;
}

namespace {

ComparisonPolicy policy_of(const ComparisonKind& kind) { return {kind.equivalent}; }

THandle<InputTextStyleFinder> finder(unsigned int n) {
    switch (n % 4) {
        case 0:
            return make_handle<InputTextStyleFinder>();
        case 1:
            return make_handle<CifTextStyleFinder>();
        case 2:
            return make_handle<TevoChemicalNameStyleFinder>();
        default:
            return make_handle<CifFormulaStyleFinder>();
    }
}

/// Whether nothing of a text is cut there.
bool is_between_characters(const std::string& text, unsigned int position) {
    return position == text.size() || start_of_character(text, position) == position;
}

void expect_disjoint(const std::string& text, std::vector<StringSlice> ranges) {
    std::sort(ranges.begin(), ranges.end());
    unsigned int end = 0;
    for (const StringSlice& range : ranges) {
        EXPECT_GE(range.from(), end) << text;
        EXPECT_TRUE(is_between_characters(text, range.from())) << text;
        EXPECT_TRUE(is_between_characters(text, range.to())) << text;
        end = std::max(end, range.to());
    }
    EXPECT_LE(end, text.size());
}

void compare_both_ways(const TextItem& left_item, const TextItem& right_item,
                       const ComparisonKind& kind) {
    const ComparedText left(left_item), right(right_item);
    const TextComparison there(left, right, kind, policy_of(kind));
    const TextComparison back(right, left, kind, policy_of(kind));
    SCOPED_TRACE(std::string(kind.name) + ": " + left_item.text() + " / " + right_item.text());
    EXPECT_EQ(there.verdict, back.verdict);
    std::vector<StringSlice> left_ranges, right_ranges;
    std::vector<Finding> mirrored;
    bool is_equivalent = true;
    for (const Finding& finding : there.findings) {
        left_ranges.push_back(finding.left);
        right_ranges.push_back(finding.right);
        mirrored.push_back(finding.mirrored());
        is_equivalent = is_equivalent && finding.is_equivalent;
    }
    EXPECT_TRUE(std::is_sorted(left_ranges.begin(), left_ranges.end()));
    expect_disjoint(left_item.text(), left_ranges);
    expect_disjoint(right_item.text(), right_ranges);
    EXPECT_TRUE(std::is_permutation(mirrored.begin(), mirrored.end(), back.findings.begin(),
                                    back.findings.end()));
    const bool is_equal = left_item.text() == right_item.text();
    EXPECT_EQ(there.findings.empty(), is_equal);
    EXPECT_EQ(there.verdict == Verdict::equal, is_equal);
    EXPECT_EQ(there.verdict != Verdict::different, is_equivalent);
}

/// Pieces of names, numbers, formulae, people, references and groups, and what breaks them.
constexpr const char* pieces[] = {
    "a",
    "B",
    "alpha",
    "\xCE\xB1",
    "\\a",
    "\\'e",
    "\xC3\xA9",
    "e\xCC\x81",
    "-",
    "--",
    "\xE2\x80\x93",
    "'",
    "\xE2\x80\xB2",
    " ",
    "  ",
    "\xC2\xA0",
    "~2~",
    "^2+^",
    "\xC2\xB2",
    "2",
    "22",
    "10.001(2)",
    "10.0012(15)",
    "1.5e-400",
    "C22",
    "H40",
    "Cl",
    ", ",
    "2(",
    ")",
    "A.B.Smith",
    "J.M\xC3\xBCller",
    "Mueller B A",
    "Acta Cryst. C",
    "Acta Crystallographica Section C",
    " (59, 2003), ",
    "12-15",
    "P21/c",
    "P-1",
    "\xFF",
    "\xCC\x85",
    "<sub>",
    "</sub>",
    "\xC3\x9F",
    "ss",
    "a 5.1 b 6(1)",
};

std::string random_text(Random& random, unsigned int most) {
    std::string text;
    for (unsigned int i = random() % (most + 1); i > 0; --i)
        text += pieces[random() % std::size(pieces)];
    return text;
}

TextItem styled(unsigned int n, const std::string& text) {
    try {
        return {finder(n), text};
    } catch (const std::exception&) {  // crossed marks, which the finder of names refuses
        return {finder(0), text};
    }
}

}  // namespace

TEST(TextComparison, IsTheSameEitherWayRound) {
    Random random(15);
    for (int n = 0; n < 20000; ++n) {
        const std::string text = random_text(random, 8);
        std::string other = random() % 2 == 0 ? random_text(random, 8) : text;
        if (!other.empty() && random() % 2 == 0) {  // a small change
            const std::string piece = pieces[random() % std::size(pieces)];
            other.replace(random() % other.size(), random() % 3, piece);
        }
        const TextItem left = styled(random(), text), right = styled(random(), other);
        const auto kinds = comparison_kinds();
        compare_both_ways(left, right, kinds[random() % kinds.size()]);
        if (HasFailure()) return;
    }
}

TEST(TextComparison, IsBounded) {
    std::string sides[2], people[2], numbers[2], digits(400, '7');
    Random random(15);
    for (int i = 0; i < 100000; ++i) {
        sides[0] += static_cast<char>('a' + random() % 13);
        sides[1] += static_cast<char>('a' + random() % 26);
    }
    for (int i = 0; i < 5000; ++i) {
        const std::string name = "A.Name" + std::string(1, static_cast<char>('a' + i % 26)) +
                                 std::string(1, static_cast<char>('a' + i / 26 % 26)) +
                                 std::string(static_cast<std::size_t>(i / 676), 'e');
        people[0] += (i == 0 ? "" : ", ") + name;
        people[1].insert(0, name + (i == 0 ? "" : ", "));
    }
    for (int i = 0; i < 100000; ++i) {
        numbers[0].append(std::to_string(i)).append(" ");
        numbers[1].append(std::to_string(i * 7 % 100000)).append(" ");
    }
    std::string marks;
    for (int i = 0; i < 100000; ++i) marks += "\xCC\x81";
    const struct {
        const char* kind;
        std::string left, right;
    } cases[] = {
        {"text", sides[0], sides[1]},
        {"text", std::string(100000, 'a') + sides[0], sides[0] + std::string(100000, 'b')},
        {"authors", people[0], people[1]},
        {"numbers", numbers[0], numbers[1]},
        {"text", "e" + marks, "f" + marks},
        {"authors", "A.B." + sides[0], "A." + sides[1]},
        {"numbers", digits + "." + digits, digits + "(1000000000)"},
        {"formula", sides[0], "C22 H40"},
        {"reference", sides[0], sides[1] + " (1, 2000), 5"},
        {"space-group", sides[0], "P-1"},
        {"text", "a\xFF", "a\xFE"},
    };
    for (const auto& [name, left, right] : cases) {
        const auto kinds = comparison_kinds();
        const auto* const kind = &*std::find_if(kinds.begin(), kinds.end(), [&](const auto& row) {
            return std::string(row.name) == name;
        });
        const TextItem left_item(finder(0), left), right_item(finder(0), right);
        const ComparedText left_side(left_item), right_side(right_item);
        const auto start = std::chrono::steady_clock::now();
        const TextComparison compared(left_side, right_side, *kind, policy_of(*kind));
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        EXPECT_EQ(compared.verdict, Verdict::different);
        EXPECT_LT(seconds.count(), 1) << name;  // a tenth alone on a machine
        RecordProperty(std::string(name) + std::to_string(&left - &cases[0].left),
                       std::to_string(seconds.count()));
        if (getenv("VERBOSE"))
            printf("%s %zu: %.4f s, %zu findings\n", name, left.size(), seconds.count(),
                   compared.findings.size());
    }
}

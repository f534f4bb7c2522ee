#include "comparison/TextComparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "finders/CifFormulaStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "fuzz/comparison_properties.h"
#include "tests/Random.h"

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
        const ComparisonKind& kind = kinds[random() % kinds.size()];
        ASSERT_EQ(complaint_of_comparison(left, right, kind), "")
            << kind.name << ": " << text << " / " << other;
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
        const std::string kind_name = name;  // lambdas cannot hold parts of a binding
        const auto kinds = comparison_kinds();
        const auto* const kind = &*std::find_if(
            kinds.begin(), kinds.end(), [&](const auto& row) { return row.name == kind_name; });
        const TextItem left_item(finder(0), left), right_item(finder(0), right);
        const ComparedText left_side(left_item), right_side(right_item);
        const auto start = std::chrono::steady_clock::now();
        const TextComparison compared(left_side, right_side, *kind, policy_of(*kind));
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        EXPECT_EQ(compared.verdict, Verdict::different);
        EXPECT_LT(seconds.count(), 4) << name;  // a tenth alone on a machine
    }
}

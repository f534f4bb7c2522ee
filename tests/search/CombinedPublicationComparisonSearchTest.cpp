#include "search/CombinedPublicationComparisonSearch.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "search/EntireTextComparison.h"

using Slices = std::vector<StringSlice>;

TEST(EntireTextComparison, MatchesTheWholeTextToTheByte) {
    EntireTextComparison search;
    Slices found{{7, 9}};
    EXPECT_FALSE(search.search("", found));
    search.set_search_term("abc");
    for (const char* text : {"ABC", "abc ", "ab", ""}) EXPECT_FALSE(search.search(text, found));
    EXPECT_TRUE(search.search("abc", found));
    EXPECT_EQ(found, (Slices{{7, 9}, {0, 3}}));
}

TEST(CombinedPublicationComparisonSearch, MarksThePartsThatAreEqual) {
    const auto found = [](const char* term, const char* text) {
        Slices slices;
        const CombinedPublicationComparisonSearch search;
        const bool all = search.comparison_search(term, text, slices);
        EXPECT_EQ(all, slices.size() == 4) << text;
        return slices;
    };
    const char* const full = "<j>Acta</j><y>2001</y><v>57</v><p>1</p>";
    EXPECT_EQ(found(full, "<p>1</p><v>57</v><y>2001</y><j>Acta</j>!"),
              (Slices{{31, 35}, {20, 24}, {11, 13}, {3, 4}}));
    EXPECT_EQ(found(full, "<j>Acta</j><y>1</y><v>57</v>"), (Slices{{3, 7}, {22, 24}}));
    EXPECT_EQ(found(full, "Acta<j>acta</j><y>2001"), Slices());
    EXPECT_EQ(found("<j>a<y>b", "<j></j></y>"), (Slices{{3, 3}, {0, 0}, {0, 0}, {0, 0}}));
    EXPECT_EQ(found("<j>a<y>b</j>c</y><v>1", "<j>a<y>b</j>c</y><v>1</v><j>d</j>"),
              (Slices{{3, 8}, {7, 13}, {0, 0}}));
    EXPECT_THAT([&] { found("", "a</p><p>b</p>"); },
                testing::ThrowsMessage<std::range_error>("length of StringSlice error"));
}

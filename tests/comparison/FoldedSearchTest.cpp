#include "comparison/FoldedSearch.h"

#include <gmock/gmock.h>

#include <optional>

#include "search/EntireTextComparison.h"
#include "tests/Random.h"
#include "text/Position.h"

namespace {

/// Gives whatever ranges it is told to, and the text that it is asked about.
class ToldSearch : public TextSearch {
public:
    bool search(const std::string& text, std::vector<StringSlice>& slices) const override {
        asked = text;
        slices = ranges;
        return false;
    }
    void set_search_term(const std::string& term) override { asked = term; }

    std::vector<StringSlice> ranges;
    mutable std::string asked;
};

TEST(FoldedSearch, HoldsCharactersThatItsRangeHoldsWhole) {
    const char* const characters[] = {"a", "B", " ", "ß", "β", "e\u0301", "″", "\xFF", "\u200B"};
    Random random(3);
    const auto inner = make_handle<ToldSearch>();
    const FoldedSearch search(inner, {});
    for (int i = 0; i < 2000; ++i) {
        std::string text;
        std::vector<StringSlice> in_text, in_folded;
        unsigned int folded_size = 0;
        for (unsigned int n = random() % 8; n-- > 0;) {
            const std::string c = characters[random() % std::size(characters)];
            if (c == " " && text.ends_with(' ')) continue;
            const unsigned int size = length_of(folded(c, {}));
            const unsigned int begin = length_of(text);
            text += c;
            in_text.emplace_back(begin, length_of(text));
            in_folded.emplace_back(folded_size, folded_size + size);
            folded_size += size;
        }
        const unsigned int from = random() % (folded_size + 1);
        const unsigned int to = from + random() % (folded_size - from + 1);
        inner->ranges = {{from, to}};
        std::optional<StringSlice> expected;
        for (std::size_t k = 0; k < in_text.size(); ++k) {
            if (!StringSlice(from, to).has_subset(in_folded[k])) continue;
            expected = expected ? expected->combine(in_text[k]) : in_text[k];
        }
        std::vector<StringSlice> found;
        search.search(text, found);
        std::erase_if(found, [](const StringSlice& range) { return range.empty(); });
        ASSERT_EQ(found.size(), expected ? 1U : 0U) << text << from << '-' << to;
        if (expected) {
            EXPECT_EQ(found[0], *expected) << text << from << '-' << to;
        }
    }
}

TEST(FoldedSearch, FoldsTheTermToo) {
    FoldedSearch search(make_handle<EntireTextComparison>(), {});
    search.set_search_term("β-STRASSE");
    std::vector<StringSlice> found;
    EXPECT_TRUE(search.search("Beta–straße", found));
    EXPECT_THAT(found, testing::ElementsAre(StringSlice(0, 14)));
}

}  // namespace

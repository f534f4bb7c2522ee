#include "host/Regex.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "host/RegexResults.h"

using testing::HasSubstr;
using testing::ThrowsMessage;

template <class Text>
concept Searchable = requires(const Regex& regex, Text&& text, RegexResults& results) {
    regex.search_from_position(std::forward<Text>(text), 0, results);
};
static_assert(Searchable<const std::string&> && !Searchable<std::string> &&
              !Searchable<const char (&)[3]>);

TEST(Regex, SearchesFromAPositionAndTellsTheGroups) {
    const Regex regex("(a+)|(b)");
    const std::string text = "xaay b";
    RegexResults results;
    EXPECT_FALSE(results.matched(0));
    ASSERT_TRUE(regex.search_from_position(text, 0, results));
    EXPECT_EQ(results.size(), 3U);
    EXPECT_EQ(results.start(), 1U);
    EXPECT_EQ(results.end(), 3U);
    EXPECT_EQ(results.text(1), "aa");
    EXPECT_THROW(results.start(2), std::out_of_range);
    EXPECT_THROW(results.end(2), std::out_of_range);

    ASSERT_TRUE(regex.search_from_position(text, results.end(), results, 0x1000));
    EXPECT_EQ(results.text(), "b");
    EXPECT_TRUE(Regex("$").search_from_position(text, 6, results));
    EXPECT_FALSE(regex.search_from_position(text, 7, results));
    EXPECT_EQ(results.size(), 0U);
}

TEST(Regex, FindsWhatBeginsWithOneByteAsWhatMayBeginWithSeveral) {
    const struct {
        const char* pattern;
        std::string text;
        unsigned int position, start;
    } rows[] = {{"~b", "~b~b", 1, 2},        {"(?i)a~", "xA~", 0, 1}, {"(?<=a)~", "~a~", 0, 2},
                {"a\\K~", "~a~", 0, 2},      {"~?b", "ab", 0, 1},     {"(?i)~a", "~A", 0, 0},
                {"\\x00", {"a\0", 2}, 0, 1}, {"\xE4", "a\xE4", 0, 1}};
    for (const auto& [pattern, text, position, start] : rows) {
        const Regex regex(pattern);
        RegexResults results;
        ASSERT_TRUE(regex.search_from_position(text, position, results)) << pattern;
        EXPECT_EQ(results.start(), start) << pattern;
        const std::string without = "b";
        if (regex.search_from_position(without, 1, results)) ADD_FAILURE() << pattern;
        EXPECT_EQ(results.size(), 0U) << pattern;
    }
}

TEST(Regex, FreeSpacingIgnoresWhiteSpaceAndComments) {
    RegexResults results;
    const std::string text = "abd";
    EXPECT_TRUE(
        Regex("a b  # not c\n d", Regex::free_spacing).search_from_position(text, 0, results));
    EXPECT_FALSE(Regex("a b").search_from_position(text, 0, results));
}

TEST(Regex, ClassesAreThoseOfTheCLocale) {
    RegexResults results;
    const std::string text = "\xE4\xC3\xA4";
    EXPECT_FALSE(Regex("[[:alpha:]]").search_from_position(text, 0, results));
}

TEST(Regex, NamesWhatIsWrongWithAPattern) {
    EXPECT_THAT([] { Regex("a(b"); },
                ThrowsMessage<std::invalid_argument>(HasSubstr("at position 3 of 'a(b'")));
    EXPECT_THROW(Regex("a", 16), std::invalid_argument);
}

TEST(Regex, MatchesLongRunsAndThrowsAtALimit) {
    RegexResults results;
    const std::string enclosed = "~" + std::string(1000000, 'x') + "~";
    ASSERT_TRUE(Regex("~[^~]*~").search_from_position(enclosed, 0, results));
    EXPECT_EQ(results.end(), enclosed.size());
    const std::string hopeless = std::string(40, 'a') + "!";
    EXPECT_THROW(Regex("(a|aa)+$").search_from_position(hopeless, 0, results), std::runtime_error);
}

#include "markup/Utf8.h"

#include <gtest/gtest.h>

TEST(Utf8, EveryCharacterComesBackAndNoneWithoutItsEnd) {
    for (unsigned int code = 0; code <= 0x10FFFF; ++code) {
        if (code == 0xD800) code = 0xE000;  // surrogates are no characters
        std::string bytes;
        append_utf8(bytes, code);
        const Utf8Character whole = first_character(bytes + 'x');
        ASSERT_EQ(whole.code, char32_t{code});
        ASSERT_EQ(whole.size, bytes.size());
        ASSERT_TRUE(whole.valid);
        if (bytes.size() == 1) continue;
        bytes.back() = 'x';
        const Utf8Character cut = first_character(bytes);
        ASSERT_EQ(cut.size, bytes.size() - 1) << code;
        ASSERT_FALSE(cut.valid) << code;
    }
}

TEST(Utf8, ReplacesWhatIsNone) {
    for (const char* bytes : {"\x80", "\xc0\xaf", "\xc1\xbf", "\xe0\x9f\xbf", "\xed\xa0\x80",
                              "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff"}) {
        const Utf8Character character = first_character(bytes);
        EXPECT_EQ(character.code, char32_t{0xFFFD}) << bytes;
        EXPECT_EQ(character.size, 1U) << bytes;
        EXPECT_FALSE(character.valid) << bytes;
    }
}

TEST(Utf8, KnowsTheEndsOfCharacters) {
    EXPECT_EQ(end_of_character("e\u0301\u20d7x"), 6U);  // an acute and an arrow above
    EXPECT_EQ(end_of_character("ex"), 1U);
    const std::string text = "a\u20acb";
    const unsigned int starts[] = {0, 1, 1, 1, 4, 5};
    for (unsigned int i = 0; i < std::size(starts); ++i) {
        EXPECT_EQ(start_of_character(text, i), starts[i]) << i;
    }
    EXPECT_EQ(start_of_character("a\x82\xac", 2), 2U);  // no character begins before it
}

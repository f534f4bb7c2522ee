#include "markup/Utf8.h"

#include <gmock/gmock.h>

#include "markup/ascii_text.h"
#include "text/Position.h"

TEST(Utf8, ReadsTheCharactersThatItWritesAndNoSurrogates) {
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        std::string bytes;
        append_utf8(bytes, code);
        const Utf8Character character = first_character(bytes + "\x80");
        const bool surrogate = code >= 0xD800 && code < 0xE000;
        ASSERT_EQ(character.valid, !surrogate) << static_cast<unsigned int>(code);
        ASSERT_EQ(character.code, surrogate ? 0xFFFD : code);
        ASSERT_EQ(character.size, surrogate ? 1 : bytes.size());
        if (!surrogate) {
            ASSERT_EQ(start_of_character(bytes, length_of(bytes) - 1), 0);
            ASSERT_EQ(start_of_character(bytes + "\x80", length_of(bytes)), length_of(bytes));
        }
    }
}

TEST(Utf8, CountsBytesThatAreNoneAsADecoderReplacesThem) {
    const std::pair<const char*, std::size_t> cases[] = {
        {"\x80", 1},         {"\xC1\xBF", 1},         {"\xE0\x9F\xBF", 1},
        {"\xE2\x82", 2},     {"\xE2\x82 ", 2},        {"\xF0\x8F\xBF\xBF", 1},
        {"\xF0\x9F\x98", 3}, {"\xF4\x90\x80\x80", 1}, {"\xF5\x80\x80", 1}};
    for (const auto& [bytes, size] : cases) {
        EXPECT_FALSE(first_character(bytes).valid) << bytes;
        EXPECT_EQ(first_character(bytes).size, size) << bytes;
    }
    EXPECT_EQ(end_of_character("a\u0301\u20D7b"), 6);
}

TEST(AsciiText, FoldsWhatHasALikeness) {
    EXPECT_EQ(folded_to_ascii("é–Å\u0300\u036F\u02FF\u0370ΑΩΐαω²ₓ…\U0001F600"),
              "e-A??AlphaOmegaiotaalphaomega2x...?");
}

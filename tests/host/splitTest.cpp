#include "host/split.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(split, KeepsOrDropsBlankFields) {
    constexpr auto keep = StringFunctionParameters::keep_blank_fields;
    constexpr auto drop = StringFunctionParameters::drop_blank_fields;
    EXPECT_THAT(split("\na\n\nb\n", "\n", keep), ElementsAre("", "a", "", "b", ""));
    EXPECT_THAT(split("\na\n\nb\n", "\n", drop), ElementsAre("a", "b"));
    EXPECT_THAT(split("a--b-c", "--", keep), ElementsAre("a", "b-c"));
    EXPECT_THAT(split("", "\n", keep), ElementsAre(""));
    EXPECT_THAT(split("", "\n", drop), IsEmpty());
    EXPECT_THAT(split("ab", "", keep), ElementsAre("ab"));
}

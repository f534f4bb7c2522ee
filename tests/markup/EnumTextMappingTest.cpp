#include "markup/EnumTextMapping.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::StrEq;
using testing::ThrowsMessage;

namespace {

enum Metal : int { iron, nickel, copper };
using Mapping = EnumTextMapping<Metal>;

}  // namespace

TEST(EnumTextMapping, GivesTextsAndMembersSortedByText) {
    const Mapping::Initialiser rows[] = {{iron, "Fe"}, {copper, "Cu"}, {nickel, "Ni"}};
    const Mapping mapping(rows, 3);
    EXPECT_EQ(mapping.text(nickel), "Ni");
    std::vector<Metal> members{iron};
    mapping.all_members(members);
    EXPECT_THAT(members, ElementsAre(iron, copper, iron, nickel));
    EXPECT_THAT([&] { Mapping(rows, 1).text(copper); },
                ThrowsMessage<std::invalid_argument>(
                    StrEq("Internal Error: member 2 not in EnumTextMapping")));
}

TEST(EnumTextMapping, RefusesAnUnsoundTable) {
    const Mapping::Initialiser same_text[] = {{iron, "Fe"}, {nickel, "Ni"}, {copper, "Fe"}};
    const Mapping::Initialiser same_member[] = {{iron, "Fe"}, {nickel, "Ni"}, {iron, "Cu"}};
    const auto not_unique = ThrowsMessage<std::invalid_argument>(
        StrEq("Internal Error: in EnumTextMapping::EnumTextMapping, mapping is not unique"));
    EXPECT_THAT([&] { Mapping(same_text, 3); }, not_unique);
    EXPECT_THAT([&] { Mapping(same_member, 3); }, not_unique);
    EXPECT_THAT([&] { Mapping(same_text, 0); },
                ThrowsMessage<std::invalid_argument>(StrEq(
                    "Internal Error: in EnumTextMapping::EnumTextMapping, size cannot be zero")));
}

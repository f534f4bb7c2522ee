#include "fields/LMRFieldNames.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::StrEq;
using testing::ThrowsMessage;

using Names = LMRFieldNames;
using Fields = std::vector<Names::TextID>;

TEST(LMRFieldNames, LabelsAreTheNamesOfFields) {
    Fields all;
    Names::internal_fields(all);
    ASSERT_EQ(all.size(), 63U);
    for (int value = 0; value < 63; ++value) {
        EXPECT_EQ(all[static_cast<std::size_t>(value)], value);
        Names::TextID id = Names::msdbbib;
        EXPECT_TRUE(Names::find_id(Names::text(static_cast<Names::TextID>(value)), id));
        EXPECT_EQ(id, value);
    }
    Names::TextID id = Names::color;
    EXPECT_TRUE(Names::find_id("Z, Z'", id));
    EXPECT_EQ(id, 44);
    for (const char* name : {"cell lengths", "Cell Lengths ", "Cell", ""}) {
        EXPECT_FALSE(Names::find_id(name, id)) << name;
    }
    EXPECT_EQ(id, 44);
}

TEST(LMRFieldNames, RefusesWhatIsNoFieldAndGroupsOfUngroupedFields) {
    for (const int value : {63, -1, 1000}) {
        const auto id = static_cast<Names::TextID>(value);
        EXPECT_FALSE(Names::valid_id(id));
        EXPECT_THAT([&] { Names::text(id); },
                    ThrowsMessage<std::invalid_argument>(StrEq(
                        "Internal Error: Invalid field name requested in LMRFieldNames::text ")));
    }
    for (const int value : {5, 39, 63, -1}) {
        EXPECT_THAT([&] { Names::group(static_cast<Names::TextID>(value)); },
                    ThrowsMessage<std::invalid_argument>(StrEq(
                        "Internal Error: Invalid field name requested in LMRFieldNames::group")));
    }
}

TEST(LMRFieldNames, GroupsAreRunsOfFields) {
    const struct {
        int first, last;
        const char* group;
    } runs[] = {{0, 0, "Publication"},
                {1, 4, "Cell"},
                {6, 8, "Cell"},
                {9, 22, "Experimental"},
                {23, 34, "LMR Internals"},
                {35, 38, "Chemical"},
                {40, 43, "Chemical"},
                {44, 56, "Crystal"},
                {57, 58, "Publication"},
                {59, 62, "References"}};
    for (const auto& run : runs) {
        for (int id = run.first; id <= run.last; ++id) {
            EXPECT_STREQ(Names::group(static_cast<Names::TextID>(id)), run.group) << id;
        }
    }
}

TEST(LMRFieldNames, ViewsListTheirFieldsAndNoOthers) {
    Fields shown(20, Names::memo);
    Names::default_fields(shown);
    EXPECT_THAT(shown, ElementsAre(0, 58, 57, 35, 36, 43, 4, 1, 2, 3, 44, 15, 54, 51));
    Names::fields(Names::external_view, shown);
    Fields all, hidden;
    Names::fields(Names::internal_view, all);
    std::set_difference(all.begin(), all.end(), shown.begin(), shown.end(),
                        std::back_inserter(hidden));
    EXPECT_EQ(shown.size(), 49U);
    EXPECT_THAT(hidden, ElementsAre(5, 10, 18, 26, 28, 31, 33, 34, 39, 42, 56, 59, 60, 61));
    EXPECT_THAT(shown, ElementsAreArray(Names::external_list()));
}

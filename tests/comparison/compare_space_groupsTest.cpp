#include "tests/comparison/structured_findings.h"

TEST(CompareSpaceGroups, TellsNotationFromSettingAndGroup) {
    const struct {
        const char *left, *right, *findings;
    } cases[] = {
        {"P21/c", "P 1 21/c 1", "group-notation 14/14 [0,5)/[0,10)"},
        {"P 21/n", "P121/n1", "group-notation 14/14 [0,6)/[0,7)"},
        {"P1\u0305", "P-1", "group-notation 2/2 [0,4)/[0,3)"},
        {"Pa3\u0305", "P a -3", "group-notation 205/205 [0,5)/[0,6)"},
        {"R3\u0305c", "R -3 c:H", "group-notation 167/167 [0,5)/[0,8)"},
        {"P21/c", "P21/n", "group-setting 14/14 [0,5)/[0,5)"},
        {"P 1 21/c 1", "P 1 1 21/b", "group-setting 14/14 [0,10)/[0,10)"},
        {"R -3 c:H", "R -3 c:R", "group-setting 167/167 [0,8)/[0,8)"},
        {"Pnma", "Pbnm", "group-setting 62/62 [0,4)/[0,4)"},
        {"P1", "P1\u0305", "group 1/2 [0,2)/[0,4)"},
        {"C2/c", "Cc", "group 15/9 [0,4)/[0,2)"},
    };
    for (const auto& c : cases) EXPECT_EQ(found("space-group", c.left, c.right), c.findings);
}

TEST(CompareSpaceGroups, TakesWhatIsUnknownAsText) {
    for (const char* other : {"", "?", "Pxyz", "\u0305", "P\xCC"}) {
        EXPECT_EQ(found("space-group", "P-1", other), found("text", "P-1", other));
    }
    expect_sound_findings("space-group", {"P21/c", "P1\u0305", "Fd3\u0305m", "P 1 21/n 1"},
                          {"", "1", "\u0305", "\xCC", " ", "/c", "-"});
}

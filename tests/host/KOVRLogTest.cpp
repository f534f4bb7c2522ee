#include "host/KOVRLog.h"

#include <gtest/gtest.h>

TEST(KOVRLog, IsOpenForTheLevelsBetweenItsTwo) {
    const int level = KOVRLog::level_;
    const int minimum_level = KOVRLog::minimum_level_;
    const struct {
        int minimum_level, level;
        bool open;
    } cases[] = {{0, 2, false}, {0, 3, true}, {3, 3, true}, {4, 9, false}};
    for (const auto& c : cases) {
        KOVRLog::minimum_level_ = c.minimum_level;
        KOVRLog::level_ = c.level;
        EXPECT_EQ(KOVRLog::is_open(3), c.open) << c.minimum_level << " to " << c.level;
    }
    KOVRLog::level_ = level;
    KOVRLog::minimum_level_ = minimum_level;
}

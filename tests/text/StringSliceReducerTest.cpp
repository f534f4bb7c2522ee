#include "text/StringSliceReducer.h"

#include <gmock/gmock.h>

#include "tests/Random.h"

using testing::UnorderedElementsAreArray;

// The literal rule: fold every held slice that overlaps the new one into it.
TEST(StringSliceReducer, EqualsTheSlowFold) {
    Random random(1);
    for (int round = 0; round < 2000; ++round) {
        std::vector<StringSlice> added;
        std::vector<StringSlice> held;
        StringSliceReducer one_by_one;
        for (unsigned int i = random() % 8; i > 0; --i) {
            const unsigned int from = random() % 20;
            added.emplace_back(from, from + random() % 5);
            one_by_one.add(added.back());
            if (added.back().empty()) continue;
            StringSlice folded = added.back();
            std::erase_if(held, [&](const StringSlice& slice) {
                if (!slice.overlaps(added.back())) return false;
                folded = folded.combine(slice);
                return true;
            });
            held.push_back(folded);
        }
        EXPECT_THAT(one_by_one.slices(), UnorderedElementsAreArray(held));
        const StringSliceReducer at_once(added.begin(), added.end());
        EXPECT_THAT(at_once.slices(), UnorderedElementsAreArray(held));
        int length = 0;
        for (const StringSlice& slice : held) length += static_cast<int>(slice.length());
        EXPECT_EQ(at_once.total_length(), length);
    }
}

#include "text/StringSliceReducer.h"

#include <gmock/gmock.h>

#include "tests/Random.h"

using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

TEST(StringSliceReducer, MergesWhatOverlapsAndKeepsWhatTouches) {
    StringSliceReducer reducer;
    for (const StringSlice& slice : {StringSlice(0, 3), StringSlice(5, 8), StringSlice(4, 4)}) {
        reducer.add(slice);
    }
    EXPECT_EQ(reducer.total_length(), 6);
    reducer.add(StringSlice(2, 6));
    reducer.add(StringSlice(8, 9));
    EXPECT_THAT(reducer.slices(), ElementsAre(StringSlice(0, 8), StringSlice(8, 9)));
    EXPECT_EQ(reducer.total_length(), 9);
}

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
    }
}

#include "search/NormalisedString.h"

#include <gmock/gmock.h>

#include "tests/Random.h"

TEST(NormalisedString, MapsBackToWhereTheKeptCharactersStood) {
    const std::pair<char, unsigned int> bytes_and_flags[] = {
        {'a', 1}, {'B', 1}, {'1', 2}, {',', 4}, {' ', 8}, {'\t', 8}, {'\0', 0}, {'\xE9', 0}};
    Random random(1);
    for (int round = 0; round < 3000; ++round) {
        const unsigned int flags = random() % 0x40, size = random() % 12;
        const std::string extra = std::string("a,\xE9").substr(random() % 4);
        std::string raw, normalised;
        std::vector<unsigned int> stood;
        for (unsigned int i = 0; i < size; ++i) {
            const auto& [c, flag] = bytes_and_flags[random() % 8];
            raw += c;
            if ((flags & flag) != 0 || extra.find(c) != std::string::npos) continue;
            normalised += c == 'a' && (flags & 0x10) != 0 ? 'A' : c;
            stood.push_back(i);
        }
        stood.push_back(size);  // beyond the end
        const NormalisedString string({flags, extra}, raw);
        EXPECT_EQ(string.normalised(), normalised) << flags << ' ' << raw;
        std::vector<StringSlice> slices, mapped;
        for (unsigned int from = 0; from < stood.size(); ++from) {
            for (unsigned int to = from; to <= stood.size(); ++to) {
                slices.emplace_back(from, to);
                mapped.push_back(slices.back());
                if (from < to) mapped.back() = {stood[from], stood[to - 1] + 1};
            }
        }
        string.denormalise_slices(slices.begin(), slices.end(), slices.begin());
        ASSERT_EQ(slices, mapped) << flags << ' ' << raw;
    }
}

#include "tasks/SoughtText.h"

#include <gmock/gmock.h>

namespace {

using Places = std::vector<std::size_t>;

/// All texts of up to so many letters a and b.
std::vector<std::string> short_texts(std::size_t size) {
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; texts[i].size() < size; ++i) {
        for (const char c : {'a', 'b'}) texts.push_back(texts[i] + c);
    }
    return texts;
}

TEST(SoughtText, StandsWhereAPlainSearchFindsIt) {
    const std::vector<std::string> others = short_texts(9);
    for (const std::string& text : short_texts(5)) {
        const SoughtText sought(text);
        for (const std::string& other : others) {
            ASSERT_EQ(sought.stands_in(other), other.find(text) != std::string::npos)
                << text << " in " << other;
            if (text.empty()) continue;
            Places found, expected;
            SoughtText::Places places(sought, other);
            std::size_t at = other.find(text);
            while (at != std::string::npos) {
                expected.push_back(at);
                // Those at odd places, that is some that overlap and some that do not.
                at = other.find(text, at + (at % 2 == 1 ? text.size() : 1));
            }
            while ((at = places.next()) != std::string::npos) {
                found.push_back(at);
                if (at % 2 == 1) places.pass_over();
            }
            ASSERT_EQ(found, expected) << text << " in " << other;
        }
    }
}

}  // namespace

// Texts whose positions do not fit 32 bits are refused before anything is done with them.
#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>

#include "finders/CifChemicalNameStyleFinder.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinder.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NormalisedString.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"
#include "text/TextItem.h"
#include "text/regex_grep.h"

TEST(HugeText, IsRefused) {
    std::string text;  // whatever it holds, without a page of memory behind it
    text.resize_and_overwrite(0xFFFFFFFF, [](char* /*text*/, std::size_t size) { return size; });
    std::vector<StringSlice> slices, others;
    TextItem item(make_handle<CifChemicalNameStyleFinder>(), "~2~");
    CifChemicalNameStyleFinder finder;
    finder.set_text("~2~");
    RegexResults match;
    const std::function<void()> operations[] = {
        [&] { item.set_text(text); },
        [&] { finder.set_text(text); },
        [&] { regex_grep(Regex("x"), text, match, [](const StringSlice&) {}); },
        [&] { EntireTextComparison().search(text, slices); },
        [&] { NumericComparison(0).comparison_search("1", text, slices); },
        [&] { SurnameComparison().comparison_search("", text, slices); },
        [&] { MultipleLineTextComparison(nullptr).comparison_search("", text, slices); },
        [&] { CombinedPublicationComparisonSearch().comparison_search("", text, slices); },
        [&] { CommonSubstringFinder().search(text, "", slices, others, 3); },
        [&] { CommonSubstringFinder().search("", text, slices, others, 3); },
        [&] { NormalisedString(StringNormalisationPolicy(0, ""), text); },
    };
    for (const auto& operation : operations) EXPECT_THROW(operation(), std::length_error);
    EXPECT_EQ(item.text(), "~2~");
    EXPECT_EQ(finder.text(), "~2~");
    EXPECT_TRUE(slices.empty());
}

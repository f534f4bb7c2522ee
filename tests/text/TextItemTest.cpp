#include "text/TextItem.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "finders/InputTextStyleFinder.h"
#include "markup/CifRichTextGenerator.h"
#include "markup/HtmlRichTextGenerator.h"
#include "tests/Random.h"

using testing::ElementsAre;
using testing::StrEq;
using testing::ThrowsMessage;

namespace {

const char* const beyond_end = "stlye extends beyond end of string error";
const char* const bad_length = "length of StringSlice error";
const char* const overlapping = "creating an overlapping style error";
const char* const second_color = "color begins at same node as existing color error";
const char* const within_replacement = "style within replacement text style error";
const char* const nested_replacements = "nested replacement texts errror";
const char* const enclosing = "nascent replacement text enclosing existing style error";

TextItem plain_item(const std::string& text) { return {make_handle<InputTextStyleFinder>(), text}; }

std::string html(const TextItem& item) {
    HtmlRichTextGenerator generator;
    return item.mark_up_text(generator);
}

std::string printed(const TextItem& item) {
    std::ostringstream os;
    os << item;
    return os.str();
}

/// One call of a creator.
struct Creation {
    enum Kind { bold, invisible, greek, color, replacement } kind;
    unsigned int from, to;

    void on(TextItem& item) const {
        switch (kind) {
            case bold:
                return item.create_bold(from, to);
            case invisible:
                return item.create_invisible(from, to);
            case greek:
                return item.create_greek(from, to, TextItem::mu);
            case color:
                return item.create_color(from, to, TextItem::red);
            case replacement:
                return item.create_replacement_text(from, to, "R");
        }
    }

    /// The message of the refusal, or an empty string.
    std::string refusal(TextItem& item) const {
        try {
            on(item);
            return "";
        } catch (const std::range_error& error) {
            return error.what();
        }
    }
};

using Kind = Creation::Kind;

/// The rules as they read, walking all styles for each new one.
class SlowItem {
public:
    explicit SlowItem(unsigned int length) : length_(length) {}

    std::string refusal(const Creation& c) {
        if (c.to > length_) return beyond_end;
        if (c.to < c.from) return bad_length;
        const StringSlice n(c.from, c.to);
        const auto any = [&](auto rule) {
            return std::any_of(styles_.begin(), styles_.end(), rule);
        };
        if (any([&](const Style& s) { return n.partial_intersection(s.slice); }))
            return overlapping;
        const auto is_replacement = [](const Style& s) { return s.kind == Kind::replacement; };
        if (is_replacement({c.kind, n})) {
            if (any([&](const Style& s) { return is_replacement(s) && s.slice.are_subsets(n); })) {
                return nested_replacements;
            }
            if (any([&](const Style& s) { return n.has_proper_subset(s.slice); })) return enclosing;
        } else {
            if (any([&](const Style& s) {
                    return is_replacement(s) && s.slice.has_proper_subset(n);
                })) {
                return within_replacement;
            }
            if (c.kind == Kind::color && any([&](const Style& s) {
                    return s.kind == Kind::color && s.slice.from() == c.from;
                })) {
                return second_color;
            }
        }
        styles_.push_back({c.kind, n});
        return "";
    }

private:
    struct Style {
        Kind kind;
        StringSlice slice;
    };
    unsigned int length_;
    std::vector<Style> styles_;
};

/// Records what it is asked for, and reports the slices that a test put in.
class ScriptedFinder : public InputTextStyleFinder {
public:
    void subscripts(std::vector<StringSlice>& /*out*/) const override { asked("subscripts"); }
    void superscripts(std::vector<StringSlice>& /*out*/) const override { asked("superscripts"); }
    void overstrike(std::vector<StringSlice>& /*out*/) const override { asked("overstrike"); }
    void invisible(std::vector<StringSlice>& /*out*/) const override { asked("invisible"); }
    void greek(std::vector<GreekSlice>& /*out*/) const override { asked("greek"); }
    void bold(std::vector<StringSlice>& out) const override { asked("bold"), out = bold_slices; }
    void italic(std::vector<StringSlice>& out) const override {
        asked("italic"), out = italic_slices;
    }
    void replacement_text(std::vector<ReplacementTextSlice>& /*out*/) const override {
        asked("replacement_text");
    }
    void color(std::vector<ColorSlice>& /*out*/) const override { asked("color"); }
    void calc_tag_positions() override { asked("calc " + text()); }

    std::vector<StringSlice> bold_slices, italic_slices;
    mutable std::vector<std::string> calls;

private:
    void asked(const std::string& call) const { calls.push_back(call); }
};

}  // namespace

TEST(TextItem, RefusesExactlyWhatTheSlowRulesRefuse) {
    Random random(2);
    for (int round = 0; round < 3000; ++round) {
        // Short texts crowd their styles; long ones reach the look-up over far positions.
        const unsigned int length = round % 3 == 0 ? 1500 : 2 + random() % 14;
        TextItem item = plain_item(std::string(length, 'x'));
        SlowItem slow(length);
        for (int i = 0; i < 40; ++i) {
            const unsigned int from = random() % (length + 1);
            const unsigned int span = random() % 2 == 0 ? 4 : length;
            const bool reversed = from > 0 && random() % 20 == 0;
            const Creation creation{static_cast<Kind>(random() % 5), from,
                                    reversed ? from - 1 : from + random() % (span + 1)};
            const std::string before = printed(item);
            const std::string refusal = creation.refusal(item);
            ASSERT_EQ(refusal, slow.refusal(creation))
                << "round " << round << ": " << creation.kind << ' ' << from << ' ' << creation.to;
            ASSERT_EQ(printed(item) == before, !refusal.empty());
        }
    }
}

TEST(TextItem, AsksItsFinderInAFixedOrderAndKeepsWhatStoodAtAFailure) {
    const auto finder = make_handle<ScriptedFinder>();
    TextItem item(finder);
    EXPECT_THAT(finder->calls, ElementsAre());
    finder->bold_slices = {{0, 1}, {1, 3}};
    item.set_text("abcd");
    EXPECT_THAT(finder->calls,
                ElementsAre("calc abcd", "subscripts", "superscripts", "overstrike", "invisible",
                            "greek", "bold", "italic", "replacement_text", "color"));
    EXPECT_EQ(html(item), "<b>a</b><b>bc</b>d<p>");

    finder->bold_slices = {{0, 2}, {1, 3}, {3, 4}};
    finder->calls.clear();
    EXPECT_THAT([&] { item.set_text("efgh"); },
                ThrowsMessage<std::range_error>(StrEq(overlapping)));
    EXPECT_EQ(finder->calls.back(), "bold");
    EXPECT_EQ(html(item), "<b>ef</b>gh<p>");

    finder->bold_slices = {};
    finder->italic_slices = {{1, 3}};
    item.set_text("ijkl");
    item.create_color(1, 3, TextItem::red);
    EXPECT_EQ(html(item), "i<i><font color=red>jk</font></i>l<p>");
    EXPECT_THROW(TextItem(THandle<InputTextStyleFinder>(), ""), std::runtime_error);
}

TEST(TextItem, LineLengthIsValidatedAgainstTheText) {
    TextItem item = plain_item("12345678");
    item.set_line_length(3);
    EXPECT_THAT([&] { item.set_line_length(4294967295U); },
                ThrowsMessage<std::range_error>(StrEq("TextItem line length < zero error")));
    EXPECT_EQ(item.line_length(), 3U);
    CifRichTextGenerator generator;
    EXPECT_EQ(item.mark_up_text(generator), "123\n456\n78");
    item.set_text("1234");
    EXPECT_EQ(item.line_length(), 3U);
    item.set_line_length(4);
    EXPECT_EQ(item.line_length(), 0U);
}

TEST(TextItem, ACopyGoesItsOwnWay) {
    TextItem item = plain_item("abcdef");
    item.create_bold(1, 3);
    item.set_line_length(4);
    TextItem copy = item;
    copy.create_color(0, 4, TextItem::red);
    EXPECT_EQ(copy.line_length(), 4U);
    EXPECT_EQ(printed(item), "BoldStyle: From 1 To 3\n");
    EXPECT_THAT([&] { copy.create_italic(2, 5); },
                ThrowsMessage<std::range_error>(StrEq(overlapping)));
    item.create_replacement_text(0, 1, "R");
    item.create_invisible(1, 2);
    item.create_greek(2, 3, TextItem::mu);
    item.set_text("xyz");
    EXPECT_EQ(html(copy), "<font color=red>a<b>bc</b>d<br></font>ef<p>");

    TextItem moved = std::move(copy);
    copy = item;
    copy.create_italic(0, 3);
    EXPECT_EQ(moved.characters(), "abcdef");
    EXPECT_EQ(html(copy), "<i>xyz</i><p>");
    EXPECT_EQ(printed(item), "");
}

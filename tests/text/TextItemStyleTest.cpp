#include <gmock/gmock.h>

#include <functional>
#include <sstream>

#include "host/THandle.h"
#include "markup/CifTagFactory.h"
#include "markup/HtmlTagFactory.h"
#include "text/BoldStyle.h"
#include "text/ColorStyle.h"
#include "text/GreekStyle.h"
#include "text/InvisibleStyle.h"
#include "text/ItalicStyle.h"
#include "text/OverStrikeStyle.h"
#include "text/ReplacementTextStyle.h"
#include "text/TextAtomPropertyBuilder.h"
#include "text/VerticalAlignStyle.h"

TEST(TextItemStyle, EachKindNamesItsTagsItsPropertyAndItself) {
    using Property = TextAtomProperty;
    const struct {
        THandle<TextItemStyle> style;
        const char* tags;
        std::function<void(Property&)> set;  // what text_atom_begin() switches on
        const char* printed;
    } cases[] = {
        {make_handle<BoldStyle>(), "<b></b>", [](Property& p) { p.set_bold(true); },
         "BoldStyle: From 2 To 5\n"},
        {make_handle<ItalicStyle>(), "<i></i>", [](Property& p) { p.set_italic(true); },
         "ItalicStyle: From 2 To 5\n"},
        {make_handle<ColorStyle>(TextItem::green), "<font color=green></font>",
         [](Property& p) { p.set_color(TextItem::green); }, "ColorStyle: color 3 From 2 To 5\n"},
        {make_handle<GreekStyle>(TextItem::pi), "<font face=symbol></font>",
         [](Property& p) { p.set_greek(TextItem::pi); }, "GreekStyle: sym 16 From 2 To 5\n"},
        {make_handle<VerticalAlignStyle>(-1), "<sub></sub>", [](Property& p) { p.set_valign(-1); },
         "VerticalAlignStyle: From 2 To 5\n"},
        {make_handle<VerticalAlignStyle>(0), "<sup></sup>", [](Property&) {},
         "VerticalAlignStyle: From 2 To 5\n"},
        {make_handle<VerticalAlignStyle>(5), "<sup></sup>", [](Property& p) { p.set_valign(5); },
         "VerticalAlignStyle: From 2 To 5\n"},
        {make_handle<OverStrikeStyle>(), "<u></u>", [](Property& p) { p.set_overstrike(true); },
         "OverstrikeStyle: From 2 To 5\n"},
        {make_handle<InvisibleStyle>(), "", [](Property& p) { p.set_invisible(true); },
         "InvisibleStyle: From 2 To 5\n"},
        {make_handle<ReplacementTextStyle>("x"), "",
         [](Property& p) { p.set_replacement_txt("x"); }, "ReplacementTextStyle: From 2 To 5\n"},
    };
    const HtmlTagFactory factory;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.printed);
        c.style->activate(2, 5);
        EXPECT_EQ(c.style->start_tag(factory) + c.style->end_tag(factory), c.tags);

        TextAtomPropertyBuilder builder{Property()};
        c.style->text_atom_begin(builder);
        Property expected;
        c.set(expected);
        EXPECT_EQ(builder.text_atom_property(), expected);
        c.style->text_atom_end(builder);
        EXPECT_EQ(builder.text_atom_property(), Property());

        std::ostringstream os;
        os << c.style;
        EXPECT_EQ(os.str(), c.printed);
    }
}

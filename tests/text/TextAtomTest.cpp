#include "text/TextAtom.h"

#include <gmock/gmock.h>

#include <sstream>

#include "finders/InputTextStyleFinder.h"
#include "tests/Random.h"
#include "text/TextAtomPropertyBuilder.h"

namespace {

TextItem plain_item(const std::string& text) { return {make_handle<InputTextStyleFinder>(), text}; }

/// The walk as it reads: asks for an update at every position.
std::vector<TextAtom> atomize_slowly(const TextItem& item) {
    const std::string text = item.text();
    TextAtomPropertyBuilder builder{TextAtomProperty()};
    std::vector<TextAtom> atoms;
    std::string run(1, text.c_str()[0]);
    if (item.req_prop_update(0)) item.update_props(0, builder);
    for (unsigned int i = 1; i < text.size(); ++i) {
        if (item.req_prop_update(i)) {
            atoms.emplace_back(run, builder.text_atom_property());
            item.update_props(i, builder);
            run.clear();
        }
        run += text[i];
    }
    atoms.emplace_back(run, builder.text_atom_property());
    return atoms;
}

/// The runs with a letter for what is in force, for texts with bold, colour and scripts.
std::string shown(const TextItem& item) {
    std::string result;
    for (const TextAtom& atom : item.atomize()) {
        result += atom.text() + (atom.bold() ? "*" : "") + std::to_string(atom.color()) +
                  (atom.valign() == -1 ? "_" : "") + (atom.valign() == 1 ? "^" : "") + ' ';
    }
    return result;
}

}  // namespace

TEST(TextItemAtoms, RunsAreCutWhereAStyleBeginsOrEnds) {
    TextItem item = plain_item("abcdef");
    EXPECT_EQ(shown(item), "abcdef0 ");
    item.create_color(0, 6, TextItem::red);
    item.create_color(2, 4, TextItem::blue);
    EXPECT_EQ(shown(item), "ab1 cd2 ef1 ");
    item.create_bold(0, 6);
    item.create_bold(2, 4);
    EXPECT_EQ(shown(item), "ab*1 cd*2 ef1 ");  // the inner end ends both
    TextItem scripts = plain_item("abcdef");
    scripts.create_superscript(0, 4);
    scripts.create_subscript(4, 6);
    scripts.create_bold(5, 5);  // begins and never ends
    EXPECT_EQ(shown(scripts), "abcd0^ e0_ f*0_ ");
    EXPECT_EQ(plain_item("").atomize(),
              std::vector<TextAtom>(1, TextAtom(std::string(1, '\0'), TextAtomProperty())));
}

TEST(TextItemAtoms, EqualTheSlowWalk) {
    Random random(7);
    for (int round = 0; round < 2000; ++round) {
        TextItem item = plain_item(std::string("abcdefghij").substr(0, random() % 11));
        for (unsigned int i = random() % 8; i > 0; --i) {
            const auto length = static_cast<unsigned int>(item.text().size());
            const unsigned int from = random() % (length + 1);
            const unsigned int to = from + random() % (length + 1 - from);
            const unsigned int kind = random() % 5;
            try {
                if (kind == 0) item.create_bold(from, to);
                if (kind == 1) item.create_subscript(from, to);
                if (kind == 2) item.create_color(from, to, TextItem::green);
                if (kind == 3) item.create_greek(from, to, TextItem::mu);
                if (kind == 4) item.create_replacement_text(from, to, "R");
            } catch (const std::range_error&) {
                continue;  // it would have crossed another
            }
        }
        ASSERT_EQ(item.atomize(), atomize_slowly(item)) << item;
    }
}

TEST(TextAtom, PrintsItsTextAndProperties) {
    TextAtomProperty property;
    property.set_valign(-1);
    property.set_italic(true);
    property.set_color(TextItem::darkcyan);
    property.set_replacement_txt("(");
    property.set_greek(TextItem::omega);
    std::ostringstream os;
    os << TextAtom("ab", property);
    EXPECT_EQ(os.str(),
              "TextAtom Text: \"ab\"\nTextAtom Properties: \tVertical alignment: -1\n\tBold: 0\n"
              "\tItalic: 1\n\tOverstrike: 0\n\tInvisible: 0\n\tColor: 12\n"
              "\tReplacement text: (\n\tGreek: 24\n");
}

#include "entries/CifEdits.h"

#include <gmock/gmock.h>

#include "entries/EditSession.h"
#include "entries/kept_lines.h"

namespace {

/// What becomes of a file when `edit` is made.
template <class Edit>
std::string edited(const std::string& cif, Edit edit) {
    const CifDocument document(cif);
    CifEdits edits(document);
    edit(document, edits);
    return spliced(cif, edits.splices());
}

/// With the value of the first item another.
std::string with_value(const std::string& cif, const std::string& text) {
    return edited(cif, [&](const CifDocument& document, CifEdits& edits) {
        edits.set(*document.items(0)[0], 0, text);
    });
}

using Rows = std::vector<int>;  // which old rows, -1 for a new one

std::string with_rows(const std::string& cif, const Rows& rows) {
    return edited(cif, [&](const CifDocument& document, CifEdits& edits) {
        const CifItem* const item = document.items(0)[0];
        std::vector<CifRow> wanted;
        for (const int row : rows) {
            CifRow& added = wanted.emplace_back();
            if (row >= 0) {
                added.old = static_cast<std::size_t>(row);
            } else {
                added.values.emplace_back(item, "new one");
            }
        }
        edits.set_rows(*item, wanted);
    });
}

}  // namespace

TEST(CifEdits, WriteAValueInTheSimplestWayThatHoldsIt) {
    const struct {
        const char *before, *text, *after;
    } cases[] = {
        {"data_a\n_x 'old' # why\n_y 1\n", "new", "data_a\n_x 'new' # why\n_y 1\n"},
        {"data_a _x old", "it's", "data_a _x it's"},
        {"data_a _x old", "a b", "data_a _x 'a b'"},
        {"data_a _x 'old'", "a' b", "data_a _x \"a' b\""},
        {"data_a\n_x old _y 2", "a' \"b\" c", "data_a\n_x \n;a' \"b\" c\n; _y 2"},
        {"data_a\r\n_x\r\n;old\r\n;\r\n", "a\nb\n", "data_a\r\n_x\r\n;a\r\nb\r\n\r\n;\r\n"},
        {"data_a _x old", "?", "data_a _x '?'"},
        {"data_a _x old", "", "data_a _x ''"},
        {"data_a _x old", "loop_", "data_a _x 'loop_'"},
        {"data_a _x 'old'", "a'#b c", "data_a _x \"a'#b c\""},
        {"data_a _x 'old'", "'t", "data_a _x \"'t\""},
        {"data_a _x e", "\xC3\xA8", "data_a _x '\xC3\xA8'"},
        {"data_a\n_x\n;o\n;\n", "\\\na\\ \nb\\", "data_a\n_x\n;\\\n\\\\\n\na\\ \\\n\nb\\\\\n\n;\n"},
        {"#\\#CIF_2.0\ndata_a _x 'o'", "it's", "#\\#CIF_2.0\ndata_a _x it's"},
        {"#\\#CIF_2.0\ndata_a _x 'o'", "a\n;b", "#\\#CIF_2.0\ndata_a _x '''a\n;b'''"},
        {"data_a\n_x\n_y 1\n", "new", "data_a\n_x new\n_y 1\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        std::string after;
        ASSERT_NO_THROW(after = with_value(c.before, c.text));
        EXPECT_EQ(after, c.after);
        const CifDocument document(after);
        EXPECT_EQ((*document.items(0)[0])[0].content(), c.text);
    }
    for (const char* refused : {"a\001", "a\n;b", "\xFF", "\xC2\x85"}) {
        EXPECT_THROW(with_value("data_a _x old", refused), UnwritableText);
    }
}

TEST(CifEdits, FoldLinesThatNoFileMayHave) {
    std::string text(5000, 'a');
    text.replace(2040, 20, 20, ';');  // none may begin a line
    text += "\n\n" + std::string(2049, 'b') + "\\";
    const std::string after = with_value("data_a\n_x old\n", text);
    for (std::size_t line = 0; line < after.size();) {
        const std::size_t end = after.find('\n', line);
        EXPECT_LE(end - line, longest_cif_line);
        line = end + 1;
    }
    EXPECT_EQ((*CifDocument(after).items(0)[0])[0].content(), text);
}

TEST(CifEdits, AddItemsBehindTheirCategoryInItsStyle) {
    const auto added = [](const std::string& cif, const char* tag, const char* text) {
        return edited(cif, [&](const CifDocument& /*document*/, CifEdits& edits) {
            edits.add(0, tag, text);
        });
    };
    EXPECT_EQ(added("data_a\n_cell_a    1 # x\n_z 2\n", "_cell_volume", "3"),
              "data_a\n_cell_a    1 # x\n_cell_volume 3\n_z 2\n");
    EXPECT_EQ(added("data_a\n  _cell_length_a    1\n_z 2\n", "_cell_b", "3 4"),
              "data_a\n  _cell_length_a    1\n  _cell_b           '3 4'\n_z 2\n");
    EXPECT_EQ(added("data_a\n_cell_length_a 1\n_z 2\n", "_cell_b", "3"),
              "data_a\n_cell_length_a 1\n_cell_b 3\n_z 2\n");
    EXPECT_EQ(added("data_a\n_x 1\r\n_z 2", "_x_y", "3"), "data_a\n_x 1\r\n_x_y 3\r\n_z 2");
    EXPECT_EQ(added("data_a\r\n_x\t1", "_y", "a\nb"), "data_a\r\n_x\t1\r\n_y\r\n;a\r\nb\r\n;");
    EXPECT_EQ(added("data_a # of\ndata_b _x 1", "_y", "2"), "data_a # of\n_y 2\ndata_b _x 1");
    EXPECT_EQ(added("data_a\nloop_\n_publ_author_name\n'A B' # c\n_z 1", "_publ_title", "t"),
              "data_a\nloop_\n_publ_author_name\n'A B' # c\n_publ_title t\n_z 1");
}

TEST(CifEdits, AddMoveAndRemoveRowsWithAllTheirColumns) {
    const std::string lines =
        "data_a\nloop_\n_n\n_m\n 'a' 1 # of a\n# between\n 'b' 2\n;c\n; 3\n_z 1";
    const std::string words = "data_a loop_ _n _m a 1 b 2 c 3";
    const struct {
        const std::string& before;
        Rows rows;
        const char* after;  // the rows
    } cases[] = {
        {lines, {0, 1, 2}, " 'a' 1 # of a\n# between\n 'b' 2\n;c\n; 3\n_z 1"},
        {lines, {1, 2}, " # of a\n# between\n 'b' 2\n;c\n; 3\n_z 1"},
        {lines, {0, 1}, " 'a' 1 # of a\n# between\n 'b' 2\n_z 1"},
        {lines, {1, 0, 2}, " 'b' 2\n 'a' 1 # of a\n# between\n;c\n; 3\n_z 1"},
        {lines, {2, 0, 1}, ";c\n; 3\n 'a' 1 # of a\n# between\n 'b' 2\n_z 1"},
        {lines,
         {-1, 0, 1, 2, -1},
         " 'new one' ?\n 'a' 1 # of a\n# between\n 'b' 2\n;c\n; 3\n'new one' ?\n_z 1"},
        {lines, {}, " ? ? # of a\n# between\n_z 1"},
        {words, {0, 2}, " a 1 c 3"},
        {words, {0, 1}, " a 1 b 2"},
        {words, {2, 0}, "\nc 3\n a 1"},
        {words, {-1}, " 'new one' ?"},
    };
    for (const auto& c : cases) {
        const std::string head = c.before.substr(0, c.before.find("_m") + 2);
        const std::string gap = &c.before == &lines ? "\n" : "";
        EXPECT_EQ(with_rows(c.before, c.rows), head + gap + c.after);
    }
    EXPECT_EQ(with_rows("data_a\n_n 'b' # c\n_z 1\n", {-1, 0}),
              "data_a\nloop_\n_n\n'new one'\n'b' # c\n_z 1\n");
    EXPECT_EQ(with_rows("data_a\nloop_\n_n\na\nb\nc", {0}), "data_a\nloop_\n_n\na");
}

TEST(KeptLines, StayWhereNothingOfThemChanges) {
    const struct {
        const char *old, *text, *expected;
    } cases[] = {
        {"\nfirst line\nsecond line\nthird\n", "first line second word third",
         "\nfirst line\nsecond word\nthird\n"},
        {"\nfirst line\n", "other", "\nother\n"},
        {"4,4-di\nphenyl-\n2-one", "4,4-di phenyl-3-one", "4,4-di\nphenyl-\n3-one"},
        {"a\nb", "a b c", "a\nb c"},
        {"a\nb c", "a b", "a\nb"},
        {"a\nb", "b", "b"},
        {"a\nb ", "a c", "a\nc"},
        {"a\n\xC3\xA9", "a \xC3\xA8", "a\n\xC3\xA8"},
        {"a\n-b", "a -c", "a -c"},  // names are broken there
        {"one line", "other", "other"},
    };
    for (const auto& c : cases) EXPECT_EQ(in_kept_lines(c.old, c.text), c.expected) << c.text;
}

TEST(EditSession, UndoesAndDoesAgain) {
    const std::string file = "data_a\n_x 1\n_y 2\n";
    EditSession session(file);
    std::vector<std::string> states{file};
    for (const char* text : {"one", "a b\nc"}) {
        CifEdits edits(session.entries().document());
        edits.set(*session.entries().document().items(0)[0], 0, text);
        session.apply(edits.splices());
        states.push_back(session.bytes());
    }
    EXPECT_TRUE(session.undo());
    EXPECT_EQ(session.bytes(), states[1]);
    EXPECT_TRUE(session.redo());
    EXPECT_EQ(session.bytes(), states[2]);
    EXPECT_FALSE(session.redo());
    EXPECT_TRUE(session.undo() && session.undo());
    EXPECT_FALSE(session.undo() || session.is_changed());
    EXPECT_THROW(session.apply({{0, "data_a", "x"}}), CifError);
    EXPECT_THROW(session.apply({{0, "other", "x"}}), std::invalid_argument);
    EXPECT_EQ(session.bytes(), file);
    EXPECT_TRUE(session.redo());
}

#include "tasks/EntryPairing.h"

#include <gmock/gmock.h>

#include "entries/EntryReader.h"
#include "tasks/composition.h"

using testing::ElementsAreArray;

namespace {

struct Entry {
    const char* block;
    const char* number = "?";
    const char* formula = "?";
    double a = 0;  // the edge of a cubic cell
    const char* name = "?";
};

EntryTexts texts_of(const Entry& entry) {
    std::string cif = std::string("data_") + entry.block + "\n_cod_database_code " + entry.number +
                      "\n_chemical_formula_sum '" + entry.formula +
                      "'\n_chemical_name_systematic '" + entry.name + "'\n";
    for (const char* edge : {"a", "b", "c"}) {
        if (entry.a == 0) continue;
        cif += std::string("_cell_length_") + edge + ' ' + std::to_string(entry.a) + '\n';
    }
    if (entry.a != 0) {
        cif +=
            "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n"
            "_symmetry_space_group_name_H-M 'P 1'\n";
    }
    const EntryReader reader(cif);
    return {"f", reader[0], {}};
}

/// What becomes of two sides, read in turn: "left right reason" of pairs.
std::vector<std::string> paired(const std::vector<Entry>& left, const std::vector<Entry>& right) {
    EntryPairing pairing;
    std::vector<std::string> told;
    const auto tell = [&](const EntryPair& pair) {
        told.push_back(pair.left.block + ' ' + pair.right.block + ' ' + name_of(pair.reason));
    };
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        for (const auto side : {EntryPairing::right, EntryPairing::left}) {
            const auto& entries = side == EntryPairing::left ? left : right;
            if (i >= entries.size()) continue;
            if (const auto pair = pairing.add(side, texts_of(entries[i]))) tell(*pair);
        }
    }
    const EntryPairing::Rest rest = pairing.finish();
    for (const EntryPair& pair : rest.pairs) tell(pair);
    for (const EntryTexts& entry : rest.only_left) told.push_back(entry.block + " <");
    for (const EntryTexts& entry : rest.only_right) told.push_back(entry.block + " >");
    return told;
}

}  // namespace

TEST(EntryPairing, GoesByIdentifierThenCellThenNameAndLeavesTheRest) {
    const struct {
        const char* name;
        std::vector<Entry> left, right;
        std::vector<std::string> pairs;
    } cases[] = {
        {"numbers, in another order",
         {{"a", "1"}, {"b", "2"}, {"c", "3"}},
         {{"z", "3"}, {"y", "1"}, {"x", "2"}},
         {"a y identifier", "b x identifier", "c z identifier"}},
        {"the names of blocks, whose case does not count, and one twice",
         {{"I"}, {"i"}, {"K"}},
         {{"L"}, {"i"}, {"I"}},
         {"I i identifier", "i I identifier", "K <", "L >"}},
        {"a number on one side, numbers that contradict",
         {{"I", "1"}, {"II", "2"}},
         {{"II", "3"}, {"I"}},
         {"I I block", "II <", "II >"}},
        {"the nearest cell of the composition",
         {{"a", "?", "C6 H12", 5.01}, {"b", "?", "C6 H12", 5}, {"c", "?", "C6 H12", 6}},
         {{"x", "?", "H12 C6", 5}, {"y", "?", "C6 H12 O1", 6}, {"z", "?", "H12 C6", 5.04}},
         {"a z cell-and-formula", "b x cell-and-formula", "c <", "y >"}},
        {"the name",
         {{"a", "1", "C", 5, "urea"}, {"b"}},
         {{"x", "2", "C", 9, "Urea"}, {"y"}},
         {"a x name", "b <", "y >"}},
        {"the only ones", {{"a", "1"}}, {{"b", "2"}}, {"a b only"}},
        {"one against none", {{"a"}}, {}, {"a <"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_THAT(paired(c.left, c.right), ElementsAreArray(c.pairs));
    }
    const std::vector<Entry> copies(300, {"a", "?", "C", 5});
    std::vector<Entry> others(300, {"b", "?", "C", 5});
    others[7].a = 5.01;
    const std::vector<std::string> pairs = paired(copies, others);
    EXPECT_THAT(pairs, testing::SizeIs(300));
    EXPECT_THAT(pairs, testing::Each("a b cell-and-formula"));
}

TEST(composition_of, TakesElementsInAnyOrderAndNothingElse) {
    EXPECT_EQ(composition_of("C6 H12 N O2.5 1+"), composition_of("O2.5 H10 N1 C6 H2"));
    EXPECT_NE(composition_of("C6 H12"), composition_of("C6 H13"));
    for (const char* const none : {"", "?", "2(B F4)", "2 C6"}) EXPECT_EQ(composition_of(none), "");
}

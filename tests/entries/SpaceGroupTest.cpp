#include <gmock/gmock.h>

#include "entries/EntryReader.h"

namespace {

/// The entry of a block with these items.
CifEntry entry_of(const std::string& items) { return EntryReader("data_x\n" + items)[0]; }

std::string symbol_item(const std::string& symbol) {
    return "_symmetry_space_group_name_H-M\n;" + symbol + "\n;\n";
}

std::string operations_item(const std::string& operations) {
    return "loop_\n_space_group_symop_operation_xyz\n" + operations;
}

}  // namespace

TEST(SpaceGroup, IsKnownByTheSpellingsOfItsSymbol) {
    const struct {
        const char *written, *symbol;
        int number;
    } cases[] = {
        {"P 1 21/n 1", "P 1 21/n 1", 14},
        {"P2(1)/n", "P 1 21/n 1", 14},
        {"P121/n1", "P 1 21/n 1", 14},
        {"  p 2~1~ / N ", "P 1 21/n 1", 14},
        {"P 2_1/c (No. 14)", "P 1 21/c 1", 14},
        {"P 21/b", "P 1 1 21/b", 14},
        {"P2~1~2~1~2~1~", "P 21 21 21", 19},
        {"P 2 1 2 1 2 1", "P 21 21 21", 19},
        {"P -4 2(1) m", "P -4 21 m", 113},
        {"R-3c:H", "R -3 c", 167},
        {"R -3 :R", "R -3", 148},
        {"R -3 m HR", "R -3 m", 166},
        {"F d -3 m :2", "F d -3 m", 227},
        {"F d -3 m Z", "F d -3 m", 227},
        {"P n n m S", "P n n m", 58},
        {"Fd3m", "F d -3 m", 227},
        {"I 2 3", "I 2 3", 197},
        {"P bar 1", "P -1", 2},
        {"P \\=1", "P -1", 2},
        {"P\u22121", "P -1", 2},
        {"Cmce", "C m c a", 64},
        {"x", "x", 0},
        {"-P 1", "-P 1", 0},
        {":", ":", 0},
    };
    for (const auto& c : cases) {
        const CifEntry entry = entry_of(symbol_item(c.written));
        EXPECT_EQ(entry.entry->crystal_info->spacegroup.symbol, c.symbol) << c.written;
        EXPECT_EQ(entry.entry->crystal_info->spacegroup.number, c.number) << c.written;
        EXPECT_EQ(entry.problems.empty(), c.number > 0) << c.written;
    }
}

TEST(SpaceGroup, WarnsWhereItemsDisagreeAndThenGivesNoZPrime) {
    const std::string p21c = operations_item("x,y,z\n-x,1/2+y,1/2-z\n1-x,1-y,-z\nx,1/2-y,1/2+z\n");
    const struct {
        std::string items;
        const char* what;
        double z_prime;
    } cases[] = {
        {symbol_item("P 21/c") + p21c +
             "_space_group_IT_number 14\n"
             "_symmetry_space_group_name_Hall '-P 2ybc'\n",
         "", 0.5},
        {symbol_item("P 1 21/c 1") + "_space_group_IT_number 15\n",
         "the symbol P 1 21/c 1 is of number 14, not 15", 0},
        {symbol_item("P -1") + p21c, "the symbol P -1 is of number 2, not 14", 0},
        {symbol_item("P 21/n") + p21c, "the symbol P21/n is of another setting than P 1 21/c 1", 0},
        {symbol_item("P 21/c") + operations_item("x,y,z\n-x,1/2+y,1/2-z\n-x,-y,-z\n"),
         "the symbol P21/c has 4 operations, not 3", 0},
        {symbol_item("P -1") + operations_item("x,y,z\n1/4-x,-y,-z\n"),
         "the symbol P -1 has other operations", 0},
        {symbol_item("C 1 2 1") +
             operations_item("x,y,z\n-x,y,-z\n1/2+x,1/2+y,z\n1/2-x,1/2+y,1/2-z\n"),
         "the symbol C 1 2 1 has other operations", 0},
        {symbol_item("P -1") + "_space_group_name_H-M_alt 'P 1'\n",
         "the symbol P 1 is of number 1, not 2", 0},
        {"_space_group_name_Hall '-P 1'\n_space_group_IT_number 1\n",
         "the Hall symbol's group P -1 is of number 2, not 1", 0},
        {p21c + "_space_group_IT_number 4\n",
         "the operations' group P 1 21/c 1 is of number 14, not 4", 0},
        // What a symbol leaves open another item may say.
        {symbol_item("P 21") + "_space_group_name_Hall 'P 2c'\n", "", 1},
        {symbol_item("F d d d") + "_space_group_name_Hall '-F 2uv 2vw'\n", "", 0.0625},
        {symbol_item("F d d d :1") + "_space_group_name_Hall '-F 2uv 2vw'\n",
         "the symbol F d d d:1 is of another setting than F d d d:2", 0},
        {symbol_item("R 3"), "", 0},
        {symbol_item("R 3") + "_space_group_name_Hall 'P 3*'\n", "", 2. / 3},
        // Placeholders and what cannot be read say nothing.
        {symbol_item("P -1") + "_space_group_IT_number 0\n_space_group_name_Hall nonsense\n" +
             operations_item("nonsense\n"),
         "", 1},
    };
    for (const auto& c : cases) {
        const CifEntry entry = entry_of(c.items + "_cell_formula_units_Z 2\n");
        EXPECT_DOUBLE_EQ(entry.entry->crystal_info->z_prime, c.z_prime) << c.items;
        EXPECT_EQ(entry.problems.size(), *c.what ? 1U : 0U) << c.items;
        if (entry.problems.empty()) continue;
        EXPECT_EQ(entry.problems[0].what, c.what) << c.items;
        EXPECT_EQ(entry.problems[0].level, Problem::Level::warning) << c.items;
    }
}

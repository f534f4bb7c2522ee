#include "tests/comparison/structured_findings.h"

TEST(CompareFormulae, FindsElementsMoietiesAndTheirOrder) {
    const struct {
        const char *left, *right, *findings;
    } cases[] = {
        {"C22 H40 N2", "C22 H39 N2", "element H 40/39 [4,7)/[4,7)"},
        {"C22 H20 N2 O4", "C22 H20 O4", "element N 2/0 [8,10)/[7,7)"},
        {"C2 H6 O", "C2 D6 O", "element D 0/6 [2,2)/[3,5); element H 6/0 [3,5)/[2,2)"},
        {"I2 Mg", "Mg I2", "order [0,5)/[0,5)"},
        {"C4 H8 Br Cl", "C4 H8 Cl Br", "order [6,11)/[6,11)"},
        {"Ca (Ti O3)", "Ca O3 Ti", "order [4,9)/[3,8)"},
        {"C6H6O", "C6 H6 O", "blank [0,5)/[0,7)"},
        {"H O1", "H O", "coding O [2,4)/[2,3)"},
        {"Na0.5 Cl", "Na1/2 Cl", "coding Na [0,5)/[0,5)"},
        {"Ca (Ti O3)", "Ca Ti O3", "coding [3,10)/[3,8)"},
        {"B F4 -", "B F4 1-", "coding B F4 [5,6)/[5,7)"},
        {"Ba2 Cu3 O6.9 Y", "Ba2 Cu3 O7-x Y", "element O 6.9/ [8,12)/[8,12)"},
        {"Mg 2+, 2I -", "I2 Mg", "moiety-sum [0,11)/[0,5)"},
        {"2(C4 H8 O)", "C8 H16 O2", "moiety-sum [0,10)/[0,9)"},
        {"C2 H3 N, H2 O", "C2 H6 N O", "element H 5/6 [3,5)/[3,5)"},
        {"C2 H3 N, H2 O", "C2 H3 N", "multiplier H2 O 1/0 [9,13)/[7,7)"},
        {"Fe 2+, 2I -", "Fe 3+, 2I -", "charge Fe 2/3 [3,5)/[3,5)"},
        {"B F4 -", "B F4", "charge B F4 -1/0 [5,6)/[4,4)"},
        {"Cu2+", "Cu 3+", "charge Cu 2/3 [2,4)/[3,5)"},
        {"C H2 Cl2, 2(H2 O)", "3(H2 O), C H2 Cl2", "multiplier H2 O 2/3 [10,11)/[0,1)"},
        {"C H2 Cl2, H2 O", "H2 O, C H2 Cl2", "order [0,14)/[0,14)"},
        {"0.5(H2 O1), C6 H6", "C6 H6, 0.25(H2 O1)", "multiplier H2 O1 0.5/0.25 [0,3)/[7,11)"},
        {"(C2 H4)n", "n(C2 H4)", "coding [0,8)/[0,8)"},
        {"(C2 H4)n", "(C2 H4)x", "multiplier C2 H4 [7,8)/[7,8)"},
        {"Fe (C N)6 4-", "Fe (C N)6 3-", "charge Fe (C N)6 -4/-3 [10,12)/[10,12)"},
        {"K3 (Fe (C N)6)", "K3 (Fe (C N)5)", "multiplier 6/5 [12,13)/[12,13)"},
        {"(Tl0.6,K0.4)Se", "(Tl0.6,K0.5)Se", "element K 0.4/0.5 [7,11)/[7,11)"},
        {"CuSO4.5H2O", "Cu S O4, 4(H2 O)", "multiplier H2 O 5/4 [6,7)/[9,10)"},
    };
    for (const auto& c : cases) EXPECT_EQ(found("formula", c.left, c.right), c.findings);
}

TEST(CompareFormulae, TakesWhatIsNoFormulaAsText) {
    const std::string digits(400, '9');
    for (const std::string& other : {std::string("ice"), "H" + digits, "(H2 O" + std::string(1, 0),
                                     std::string("(H2 O]"), std::string("H1/0"), digits}) {
        EXPECT_EQ(found("formula", "H2 O", other), found("text", "H2 O", other));
    }
    expect_sound_findings(
        "formula",
        {"C22 H20 N2 O4", "Mg 2+, 2I -", "C12 H10 N2 2+, 2(Cl1 1-), 0.5(H2 O1)",
         "{(C12 H30 N2 2+)n,n(Al1 F5 2-)}", "Sr(DC2O4).0,5(C2O4).D2O", "Li Fe1/3 O7-\u03B4"},
        {"", " ", "2", "C", "H", "(", ")", "1-", "+", ", ", ".5", "n", "\xCE", "\u03B4", "/3"});
}

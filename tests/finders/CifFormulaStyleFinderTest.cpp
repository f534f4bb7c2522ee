#include "finders/CifFormulaStyleFinder.h"

#include <gmock/gmock.h>

#include "markup/UnicodeRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

std::string shown(const std::string& formula) {
    UnicodeRichTextGenerator generator;
    return TextItem(make_handle<CifFormulaStyleFinder>(), formula).mark_up_text(generator);
}

}  // namespace

TEST(CifFormulaStyleFinder, LowersCountsAndRaisesCharges) {
    const struct {
        const char *formula, *shown;
    } cases[] = {
        {"", ""},
        {"C6 H12 N1 O2", "C₆ H₁₂ N₁ O₂"},
        {"Na1.7 (P O2)4 F.09 D3.", "Na_{1.7} (P O₂)₄ F_{.09} D₃."},
        {"Li Fe1/3 Ln2 X3", "Li Fe_{1/3} Ln₂ X₃"},
        {"Rb (Mo2 P2) (H2 O)0.9", "Rb (Mo₂ P₂) (H₂ O)_{0.9}"},
        {"(C2 H4)n, {[Cu(L)2]}2n", "(C₂ H₄)ₙ, {[Cu(L)₂]}₂ₙ"},
        {"La1-xSrxMnO3", "La₁₋ₓSrₓMnO₃"},
        {"O7-δ Ox2 O2-x/2", "O_{7-δ} Ox₂ O_{2-x/2}"},
        // what stands before a unit
        {"0.5(H2 O), 2 B F4, 1.5H2O", "0.5(H₂ O), 2 B F₄, 1.5H₂O"},
        {"2C2 H8 N, n C1 H4", "2C₂ H₈ N, n C₁ H₄"},
        {"CuSO4.5H2O", "CuSO₄.5H₂O"},
        {"Cu S O4.0.5H2 O", "Cu S O₄.0.5H₂ O"},
        {"CuSO4·5H2O", "CuSO₄·5H₂O"},
        {"Sr(OH)2.8H2O", "Sr(OH)₂.8H₂O"},
        {"Tl0.64K0.36Fe1.8Se2", "Tl_{0.64}K_{0.36}Fe_{1.8}Se₂"},
        {"(Si).5 (C2 O4).5(H2 O) (O4).0,5(C)", "(Si)_{.5} (C₂ O₄).5(H₂ O) (O₄).0,5(C)"},
        // charges
        {"C18 H18 N4 2+, 2 B F4 1-", "C₁₈ H₁₈ N₄ ²⁺, 2 B F₄ ¹⁻"},
        {"2(C8 H20 N 1+), (Ga -)", "2(C₈ H₂₀ N ¹⁺), (Ga ⁻)"},
        {"[C N] + , Br -, (thf) 2+", "[C N] ⁺ , Br ⁻, (thf) ²⁺"},
        {"Fe 3+ O 2-", "Fe ³⁺ O ²⁻"},
        {"[Cu(NH3)4]2+ (SO4)2-", "[Cu(NH₃)₄]²⁺ (SO₄)²⁻"},
        {"(Ca OH)+,(I)-", "(Ca OH)⁺,(I)⁻"},
        {"[Ag(L)]n2n+ [Ag]nn+ [Ag]n n+", "[Ag(L)]ₙ²ⁿ⁺ [Ag]ₙⁿ⁺ [Ag]ₙ ⁿ⁺"},
        {"Fe(CN)6 3−", "Fe(CN)₆ ³⁻"},
        {"(As+), Cu2+, I3-, NH4+", "(As⁺), Cu²⁺, I₃⁻, NH₄⁺"},
        {"C12 H20 N22+, C60H48.5+", "C₁₂ H₂₀ N₂₂⁺, C₆₀H_{48.5}⁺"},
        // what may mean more than one thing
        {"SO42-", "SO42-"},
        {"Na + Cl, A - B", "Na + Cl, A - B"},
        {"[Pb O3]0.75-[Ti]0.25", "[Pb O₃]_{0.75}-[Ti]_{0.25}"},
        {"+ 2- -2 , 3+", "+ 2- -2 , 3+"},
        {"eta5-C5H5, Boron3", "eta5-C₅H₅, Boron3"},
        {"\xFF"
         "2",
         "�2"},
    };
    for (const auto& c : cases) EXPECT_EQ(shown(c.formula), c.shown) << c.formula;
}

TEST(CifFormulaStyleFinder, ReportsRunsInOrderThatNeverMeet) {
    constexpr std::string_view letters = "Cx2.+(] ,/";
    constexpr unsigned int longest = 5;
    CifFormulaStyleFinder finder;
    std::vector<std::string> texts = {""};
    for (std::size_t next = 0; next < texts.size(); ++next) {
        const std::string text = texts[next];
        finder.set_text(text);
        std::vector<StringSlice> below, above;
        finder.subscripts(below);
        finder.superscripts(above);
        std::string covered(text.size(), ' ');
        for (const auto* slices : {&below, &above}) {
            for (const StringSlice& slice : *slices) {
                ASSERT_TRUE(slice.from() < slice.to() && slice.to() <= text.size()) << text;
                for (unsigned int i = slice.from(); i < slice.to(); ++i) ++covered[i];
            }
        }
        ASSERT_EQ(covered.find_first_not_of(" !"), std::string::npos) << text;
        for (const char letter : letters) {
            if (text.size() < longest) texts.push_back(text + letter);
        }
    }
}

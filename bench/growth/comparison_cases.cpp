#include <algorithm>
#include <memory>

#include "bench/growth/Case.h"
#include "comparison/FoldedText.h"
#include "comparison/TextComparison.h"
#include "entries/EntryReader.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/InputTextStyleFinder.h"
#include "tasks/DifferenceMarks.h"
#include "tasks/EntryPairing.h"
#include "tasks/row_named.h"

namespace {

using MakeText = std::function<std::string(unsigned int)>;

Case compared(const std::string& kind, const std::string& name, unsigned int size,
              const MakeText& make_left, const MakeText& make_right) {
    const auto kinds = comparison_kinds();
    const auto row = std::find_if(kinds.begin(), kinds.end(), [&](const ComparisonKind& candidate) {
        return candidate.name == kind;
    });
    return {"compare " + name, size, [=](unsigned int n) -> Operation {
                const auto item = [n](const MakeText& make) {
                    return std::make_shared<TextItem>(make_handle<InputTextStyleFinder>(), make(n));
                };
                return [row, left = item(make_left), right = item(make_right)] {
                    TextComparison(ComparedText(*left), ComparedText(*right), *row,
                                   {row->equivalent});
                };
            }};
}

auto units(const std::string& unit, const std::string& end = "") {
    return [=](unsigned int n) { return repeated(unit, n) + end; };
}

/// Names of letters, from the first of n on or from the last.
MakeText authors(bool from_last) {
    return [from_last](unsigned int n) {
        std::string text;
        for (unsigned int i = 0; i < n; ++i) {
            text += "A.S";
            for (unsigned int rest = from_last ? n - 1 - i : i; rest > 0; rest /= 20) {
                text += static_cast<char>('a' + rest % 20);
            }
            text += "e, ";
        }
        return text;
    };
}

/// A text folded, and each position of it asked for.
Case folded_text(const char* name, const char* unit) {
    return {std::string("fold ").append(name), 2000, [unit](unsigned int size) -> Operation {
                return [text = repeated(unit, size)] {
                    const FoldedText folded(text, {});
                    const auto end = static_cast<unsigned int>(folded.text().size());
                    for (unsigned int i = 0; i < end; ++i) {
                        static_cast<void>(folded.whole_characters({i, i + 1}));
                    }
                };
            }};
}

/// Every other character marked, within and beside styles.
Case marked(const char* target) {
    return {std::string("marks in ") + target, 500, [target](unsigned int size) -> Operation {
                const RichTextTarget& row = *row_named(rich_text_targets(), target);
                const auto item = std::make_shared<TextItem>(make_handle<CifTextStyleFinder>(),
                                                             repeated("<i>ab</i>~2~", size));
                std::vector<Finding> findings;
                for (unsigned int i = 0; i < 6 * size; ++i) {
                    const StringSlice range(2 * i, 2 * i + 1);
                    findings.push_back({Finding::Reason::replacement, range, range});
                }
                return [&row, item, findings] {
                    DifferenceMarks(row).marked(*item, findings, DifferenceMarks::left);
                };
            }};
}

/// Entries of one composition in nearly one cell, on two sides without a common identifier.
Case paired() {
    return {"pairs of near cells", 200, [](unsigned int size) -> Operation {
                const auto entries = std::make_shared<std::vector<EntryTexts>>();
                for (unsigned int i = 0; i < 2 * size; ++i) {
                    const std::string cif =
                        "data_x _chemical_formula_sum C _cell_length_a 5." +
                        std::to_string(100000 + i) +
                        " _cell_length_b 6 _cell_length_c 7 _cell_angle_alpha 90 "
                        "_cell_angle_beta 90 _cell_angle_gamma 90 "
                        "_symmetry_space_group_name_H-M P1 ";
                    entries->emplace_back(std::string(1, 'f').append(std::to_string(i)),
                                          EntryReader(cif)[0], std::span<const Field>());
                }
                return [entries] {
                    EntryPairing pairing;
                    for (std::size_t i = 0; i < entries->size(); ++i) {
                        EntryTexts& entry = (*entries)[i];
                        pairing.add(i % 2 == 0 ? EntryPairing::left : EntryPairing::right, entry,
                                    entry.file);
                    }
                    pairing.finish();
                };
            }};
}

}  // namespace

std::vector<Case> comparison_cases() {
    return {
        compared("formula", "elements", 2000, units("Cl2 Br "), units("Br Cl3 ")),
        compared(
            "formula", "moieties", 500, [](unsigned int n) { return numbered("C#,", n); },
            [](unsigned int n) { return numbered("H2 C#,", n); }),
        compared(
            "formula", "nested brackets", 2000,
            [](unsigned int n) { return repeated("(", n) + "C" + repeated(")", n); },
            [](unsigned int n) { return repeated("(", n) + "H" + repeated(")", n); }),
        compared("authors", "authors reversed", 500, authors(false), authors(true)),
        compared("authors", "equal authors", 500, units("A.Smith, "), units("B.Smith, ")),
        compared("authors", "initials", 2000, units("A.", "Smith"), units("A.B.", "Smith")),
        compared("reference", "words of a journal", 2000, units("Journal ", "(1, 2001), 2"),
                 units("J. ", "(1, 2001), 2")),
        compared("reference", "parentheses", 4000, units("(", "(1, 2001), 2"),
                 units("(", ") (1, 2001), 2")),
        compared("text", "words", 1000, units("ab cd "), units("ab ce ")),
        compared(
            "text", "texts of nothing alike", 2000,
            [](unsigned int n) { return numbered("#a", n); },
            [](unsigned int n) { return numbered("b#", n, 7); }),
        compared("text", "marks", 1000, units("e\xCC\x81"), units("\xC3\xA9")),
        compared("text", "one letter", 4000, units("a"), units("a", "b")),
        compared("numbers", "numbers", 2000, units("1.5(2) "), units("1.6(2) ")),
        compared("numbers", "digits without end", 8000, units("9", "(1)"), units("9", "8(1)")),
        compared("space-group", "bars", 2000, units("-1", "P"), units("<bar>1</bar>")),
        folded_text("letters with marks", "A\xCC\x81\xC3\x9F"),
        folded_text("marks without end", "\xCC\x81\xCC\xA7"),
        folded_text("blanks and dashes", " \xC2\xA0\t\xE2\x80\x94"),
        folded_text("bytes that are not UTF-8", "\xC3\xFF"),
        marked("unicode"),
        marked("html5"),
        paired(),
    };
}

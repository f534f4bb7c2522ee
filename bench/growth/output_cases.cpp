#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "bench/growth/Case.h"
#include "checks/check_entries.h"
#include "entries/CifEdits.h"
#include "entries/EntryReader.h"
#include "output/CheckLayout.h"
#include "output/check_summary.h"
#include "output/layouts.h"
#include "output/unified_diff.h"
#include "tasks/View.h"
#include "tasks/row_named.h"

namespace {

/// What stands before, between and behind units in a file.
struct File {
    const char* name;
    unsigned int size;
    const char *head, *unit, *tail;
    bool all_differ = false;  ///< Where it is compared; where one letter does, little else costs.

    std::string bytes(unsigned int n) const { return head + numbered(unit, n) + tail; }
};

constexpr File one_number = {"entries of one number", 100, "", "data_#\n_cod_database_code 1\n",
                             ""};
constexpr File long_name = {"a long name", 500, "data_a\n_chemical_name_systematic\n;",
                            "\\a-F^#^ <i>&", "\n;\n"};
constexpr File people = {"many people",       250, "data_a\nloop_\n_publ_author_name\n",
                         "'Blake#, A. J.'\n", "",  true};
constexpr File long_remark = {"a long remark", 1000, "data_a\n_refine_special_details\n;",
                              "- * # |\n\n& <b> ", "\n;\n"};

std::shared_ptr<std::string> kept(std::string bytes) {
    return std::make_shared<std::string>(std::move(bytes));
}

/// All entries of a file, read, styled and laid out.
Case laid_out(const char* name, const File& file) {
    return {std::string(name).append(": ").append(file.name), file.size,
            [=](unsigned int n) -> Operation {
                const auto bytes = kept(file.bytes(n));
                const auto reader = std::make_shared<EntryReader>(*bytes);
                return [=] {
                    static_cast<void>(bytes);
                    const auto layout =
                        make_entry_layout(*row_named(show_outputs(), name), true, ::fields(),
                                          TextPositions{DisplayedText::utf16, true});
                    layout->head("Entries");
                    for (std::size_t i = 0; i < reader->size(); ++i) {
                        const EntryFields fields((*reader)[i], ::fields());
                        layout->add(layout->entry("f", "b", fields.fields));
                    }
                    layout->foot();
                };
            }};
}

/// Each entry of a file compared with one in which something is another.
Case compared(const char* name, const File& file) {
    return {std::string("compare as ").append(name).append(": ").append(file.name), file.size,
            [=](unsigned int n) -> Operation {
                const auto texts = [](const std::string& bytes) {
                    const EntryReader reader(bytes);
                    std::vector<EntryTexts> all;
                    for (std::size_t i = 0; i < reader.size(); ++i) {
                        all.emplace_back("f", reader[i], ::fields());
                    }
                    return all;
                };
                std::string other = file.bytes(n);
                const std::size_t first = other.find('1') + 1;
                const auto end = other.begin() + static_cast<std::ptrdiff_t>(first);
                std::replace(other.begin(), file.all_differ ? other.end() : end, '1', '2');
                return [=, left = texts(file.bytes(n)), right = texts(other)] {
                    const auto layout = make_comparison_layout(*row_named(compare_outputs(), name));
                    ComparisonSummary summary;
                    layout->head("Both");
                    for (std::size_t i = 0; i < left.size(); ++i) {
                        const EntryComparison both(left[i], right[i], ::fields(), {}, true);
                        summary.add(left[i], right[i], both);
                        layout->add(
                            layout->comparison({"f", "b"}, {"g", "b"}, PairingReason::name, both));
                    }
                    layout->foot_with(summary, ::fields());
                };
            }};
}

/// What checking finds, much of it of one code.
Case found(const char* name) {
    return {std::string("findings as ").append(name), 200, [=](unsigned int n) -> Operation {
                const auto bytes = kept(numbered("data_#\n_cell_length_a 1.#e\n", n));
                const auto reader = std::make_shared<EntryReader>(*bytes);
                const auto findings = std::make_shared<CheckFindings>(check_entries(*reader));
                return [=] {
                    const auto layout = row_named(check_outputs(), name)->make();
                    layout->head("1.0");
                    for (const CheckFinding& finding : *findings) layout->finding(finding);
                    layout->foot();
                    CheckSummary summary;
                    summary.take(*findings);
                    summary_as_text(summary);
                };
            }};
}

/// Every other line of a file changed, or all of one line.
Case told_as_diff(const char* name, const char* unit) {
    return {std::string("diff: ").append(name), 2000, [=](unsigned int n) -> Operation {
                const auto bytes = kept("data_a\nloop_\n_n\n" + numbered(unit, n));
                const CifDocument document(*bytes);
                CifEdits edits(document);
                const CifItem& item = *document.items(0)[0];
                for (std::size_t row = 0; row < item.size(); row += 2) edits.set(item, row, "new");
                return [=, splices = edits.splices()] { unified_diff("f", *bytes, splices, true); };
            }};
}

}  // namespace

std::vector<Case> output_cases() {
    std::vector<Case> cases;
    for (const char* const name : {"html5", "latex", "markdown", "json", "csv", "ansi"}) {
        for (const File& file : {one_number, long_name, people, long_remark}) {
            cases.push_back(laid_out(name, file));
        }
    }
    for (const char* const name : {"html5", "latex", "json", "ansi"}) {
        for (const File& file : {one_number, long_name, people, long_remark}) {
            cases.push_back(compared(name, file));
        }
    }
    for (const CheckOutput& output : check_outputs()) cases.push_back(found(output.name));
    cases.push_back(told_as_diff("lines", "#\n"));
    cases.push_back(told_as_diff("one line", "# "));
    return cases;
}

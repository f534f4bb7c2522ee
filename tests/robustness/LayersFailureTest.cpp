// The same for what stands over the kernel: reading, editing, comparing, checking, finding and
// laying out entries.
#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "checks/check_entries.h"
#include "entries/EditSession.h"
#include "entries/field_edit.h"
#include "output/CheckLayout.h"
#include "output/check_summary.h"
#include "output/folding_table.h"
#include "output/layouts.h"
#include "output/text_lines.h"
#include "output/unified_diff.h"
#include "tasks/EntryEditor.h"
#include "tasks/EntryFinder.h"
#include "tasks/EntryNames.h"
#include "tasks/EntryPairing.h"
#include "tasks/TermKind.h"
#include "tasks/View.h"
#include "tasks/row_named.h"
#include "tests/robustness/failing_operation.h"

namespace {

constexpr char entries_cif[] = R"(data_global
_journal_name_full 'Acta Crystallographica Section C'
_journal_year 2003
_journal_volume 59
_journal_page_first o1569
_journal_page_last o1563
loop_
_publ_author_name
'C\'isa\<rov\'a, I.'
'Blake, Anne J.'
_publ_section_title
;
Acetates of \h^5^-ligands:
a structure
;
data_I
_cod_database_code 2204347
_cell_length_a 11.1412(3) # long
_cell_length_b 22.35
_cell_length_c 9.7
_cell_angle_alpha 90
_cell_angle_beta 101.5
_cell_angle_gamma 90
_cell_volume 2367.1(4)
_cell_formula_units_Z 4
_symmetry_space_group_name_H-M 'P 1 21/n 1'
_chemical_formula_sum 'C22 H20 N2'
_chemical_formula_weight 300
_chemical_name_systematic 'bis(\b-D-glucose) tetrahydrate, hep-1-ene'
_diffrn_ambient_temperature 100(2)
_refine_ls_R_factor_gt 0.0341
_exptl_crystal_colour ' red'
loop_
_symmetry_equiv_pos_as_xyz
x,y,z '1/2-x,1/2+y,1/2-z' -x,-y,-z 'x+1/2,1/2-y,z+1/2'
loop_
_atom_site_label
_atom_site_fract_x
_atom_site_fract_y
_atom_site_fract_z
C1 0.1 0.2 0.3
C1 0.1 0.2 0.30001
data_II
_chemical_formula_sum 'C2 H6 O'
_chemical_name_common ethanol
)";

/// The same entries, otherwise said.
std::string other_cif() {
    std::string cif = entries_cif;
    for (const auto& [old, text] : std::vector<std::pair<std::string, std::string>>{
             {"Acta Crystallographica Section C", "Acta Cryst. C"},
             {"Blake, Anne J.", "Blake, A. J.'\n'Smith, B."},
             {"11.1412(3)", "11.1462(3)"},
             {"P 1 21/n 1", "P 1 21/c 1"},
             {"C22 H20 N2", "C22 H22 N2"},
             {"glucose) tetra", "D-glucose) penta"},
             {"\\h^5^", "\\h^6^"},
             {"2204347", "?"},
             {"ethanol", "Ethanole"}}) {
        cif.replace(cif.find(old), old.size(), text);
    }
    return cif;
}

/// An operation that makes all that it needs.
FailingCase made(std::string name, FailingOperation operation) {
    return {std::move(name), [operation = std::move(operation)] { return operation; }};
}

std::string told(const std::vector<Problem>& problems) {
    std::string all;
    for (const Problem& problem : problems) {
        all.append(problem.item).append(": ").append(problem.what).append(problem.found);
        all.append(problem.expected).append("\n");
    }
    return all;
}

std::string told(const Splices& splices) { return spliced(entries_cif, splices); }

/// Entries that have been read, in bytes of their own.
struct ReadEntries {
    explicit ReadEntries(std::string cif) : bytes(std::move(cif)), reader(bytes) {}

    std::string bytes;
    EntryReader reader;
};

std::string read(const std::string& cif) {
    try {
        const EntryReader reader(cif);
        std::string all;
        for (std::size_t i = 0; i < reader.size(); ++i) {
            const CifEntry entry = reader[i];
            for (const Field& field : fields()) all += text_of(entry, field).shown() + '\n';
            all += told(entry.problems);
        }
        return all.append(std::to_string(EntryNames(reader).named("ii").size()));
    } catch (const CifError& error) {
        return error.what() + told({error.problem()});
    }
}

std::string processed(const std::string& text, const MakeTextProcess& make) {
    const std::unique_ptr<TextProcess> process = make();
    std::vector<Problem> problems;
    const std::optional<std::string> result = process->process(text, problems);
    return result.value_or("") + told(problems);
}

constexpr char terms[][32] = {"tetrahydrate", "22.35",      "C22H20",    "author:cisarova",
                              "group:14",     "year:2003",  "r:3-4",     "cell:11.14,22.35,9.7",
                              "name:glucose", "doi:10.1/a", "formula:N2"};

std::string found(const CifEntry& entry, const char* written) {
    const std::vector<Field> wanted = row_named(views(), "internal")->fields();
    EntryFinder::Terms asked;
    asked.push_back(make_term(written, {}));
    const EntryFinder finder(wanted, std::move(asked), {});
    const EntryFields matches = finder.find(entry);
    std::string all = told(matches.problems) + (finder.is_in(entry) ? "is there\n" : "is not\n");
    for (const EntryField& field : matches.fields) all += field.item.characters() + '\n';
    return all;
}

std::string laid_out(const Output& output, bool own_file, const CifEntry& entry) {
    const std::vector<Field> wanted = row_named(views(), "internal")->fields();
    const EntryFields shown(entry, wanted);
    const auto layout =
        make_entry_layout(output, own_file, wanted, TextPositions{DisplayedText::utf16, true});
    std::string document = layout->head("Entries");
    for (const char* const block : {"a", "a"}) {
        document += layout->add(layout->entry("f", block, shown.fields));
    }
    return document + layout->foot() + told(shown.problems);
}

std::string compared(const Output& output, const ReadEntries& left, const ReadEntries& right) {
    const std::vector<Field> wanted = row_named(views(), "internal")->fields();
    ComparisonSummary summary;
    const auto layout = make_comparison_layout(output);
    std::string document = layout->head("Both");
    const auto add = [&](const EntryPair& pair) {
        const EntryComparison comparison(pair.left, pair.right, wanted, {}, true);
        summary.add(pair.left, pair.right, comparison);
        document += layout->add(layout->comparison({pair.left.file, pair.left.block},
                                                   {pair.right.file, pair.right.block}, pair.reason,
                                                   comparison));
        document += told(comparison.problems);
    };
    EntryPairing pairing;
    for (std::size_t i = 0; i < left.reader.size(); ++i) {
        pairing.add(EntryPairing::left, {"l", left.reader[i], wanted});
        if (const auto pair = pairing.add(EntryPairing::right, {"r", right.reader[i], wanted})) {
            add(*pair);
        }
    }
    for (const EntryPair& pair : pairing.finish().pairs) add(pair);
    document += layout->add(layout->only({"r", "c"}, Verdict::only_right));
    summary.add_only(Verdict::only_right);
    document += layout->foot_with(summary, wanted) + layout->summary(summary, wanted);
    return document;
}

std::string checked(const CheckOutput& output, const EntryReader& reader) {
    const CheckFindings findings = check_entries(reader);
    CheckSummary summary;
    summary.take(findings);
    const auto layout = output.make();
    std::string all = layout->head("1.0");
    for (const CheckFinding& finding : findings) all += layout->finding(finding);
    return all + layout->foot() + summary_as_text(summary) + told(repairs_of(findings));
}

std::string edited(const EntryReader& reader, const Field& field, const std::string& text) {
    CifEdits edits(reader.document());
    try {
        edit_field(reader, 0, field.label, text, edits);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return told(edits.splices());
}

/// All ways of editing, in a file of entries with something in common.
std::string edited_as_asked(const EntryReader& reader) {
    EntryEditor editor(reader);
    editor.set(0, field_named("Title"), "Acetate of η⁵, ²³", nullptr);
    editor.set(0, field_named("Author(s)"), "A.Smith, B.Jones, I.Císařová", nullptr);
    editor.set(0, field_named("Cell Lengths"), "a 1(1) b 2 c 3", nullptr);
    editor.set(0, field_named("Color"), "b!2$", row_named(sources(), "tevo-name"));
    editor.replace(0, field_named("Compound Name"), "glucose", "fructose", nullptr);
    editor.update(1, field_named("Formula"), "C2 H4 O");
    editor.set(1, field_named("Temperature (K)"), "warm", nullptr);
    return told(editor.splices()) + told(editor.problems()) + told({*editor.first_change()});
}

std::vector<FailingCase> text_cases() {
    std::vector<FailingCase> cases;
    const std::string text = "bis(\\b-D-glucose) C~2~^+^ \\'e <i>N</i> and 22.35";
    for (const Source& source : sources()) {
        for (const RichTextTarget& target : rich_text_targets()) {
            ConvertOptions options{&source, &target, 9, ascii_form_of(target)};
            const std::string own =
                row_named(sources(), "tevo-name") == &source ? "alpha-D-gluco!2$-kappa$2!N" : text;
            if (source.is_coded || row_named(rich_text_targets(), "html5") == &target) {
                cases.push_back(made(std::string(source.name) + " to " + target.name, [=] {
                    try {
                        return processed(own, [&] { return make_conversion(options); });
                    } catch (const std::exception& error) {
                        if (dynamic_cast<const std::bad_alloc*>(&error)) throw;
                        return std::string(error.what());
                    }
                }));
            }
        }
    }
    for (const SearchKind& kind : search_kinds()) {
        SearchOptions options;
        options.how = &kind;
        options.settings.folding = Folding{};
        options.term = "β-d-GLUCOSE 22.35";
        options.from = row_named(sources(), "cif-text");
        options.to = row_named(search_outputs(), "html5");
        options.positions = TextPositions{DisplayedText::utf16, true};
        cases.push_back(made(std::string("search ") + kind.name, [=] {
            return processed(text, [&] { return make_search(options); });
        }));
    }
    return cases;
}

std::vector<FailingCase> entry_cases() {
    const auto left = std::make_shared<ReadEntries>(entries_cif);
    const auto right = std::make_shared<ReadEntries>(other_cif());
    const auto entry = std::make_shared<CifEntry>(left->reader[0]);
    std::vector<FailingCase> cases = {
        made("read", [] { return read(entries_cif); }),
        made("read what is no CIF", [] { return read("data_a loop_ _a _b 1 2 3"); }),
        made("read what does not end", [] { return read("data_a _b 'a\n"); }),
        made("edits", [=] { return edited_as_asked(left->reader); }),
        made("diff",
             [=] {
                 CifEdits edits(left->reader.document());
                 edits.set(*left->reader.document().items(0)[0], 0, "new");
                 const Splices splices = edits.splices();
                 return unified_diff("f", left->bytes, splices, true) + told(splices);
             }),
        made("folding table", folding_table),
    };
    for (const Field& field : fields()) {
        if (field_writing(field.label) == FieldWriting::derived) continue;
        const std::string now = text_of(*entry, field).text;
        cases.push_back(made(std::string("edit ") + field.label, [=, &field] {
            return edited(left->reader, field, now.empty() ? "1" : now + " 1") +
                   edited(left->reader, field, now.substr(now.size() / 2)) +
                   edited(left->reader, field, "");
        }));
    }
    for (const char* const term : terms) {
        cases.push_back(made(std::string("find ") + term, [=] { return found(*entry, term); }));
    }
    for (const Output& output : show_outputs()) {
        for (const bool own_file : {false, true}) {
            cases.push_back(made(std::string("show as ") + output.name,
                                 [=, &output] { return laid_out(output, own_file, *entry); }));
        }
    }
    for (const Output& output : compare_outputs()) {
        cases.push_back(made(std::string("compare as ") + output.name,
                             [=, &output] { return compared(output, *left, *right); }));
    }
    for (const CheckOutput& output : check_outputs()) {
        // nlohmann takes memory to let go of a document, and without any that ends the program.
        if (output.name == std::string_view("sarif")) continue;
        cases.push_back(made(std::string("check as ") + output.name,
                             [=, &output] { return checked(output, left->reader); }));
    }
    return cases;
}

}  // namespace

TEST(AllocationFailure, ComesOutOfTexts) { expect_failures_to_come_out(text_cases(), 32); }

TEST(AllocationFailure, ComesOutOfEntries) { expect_failures_to_come_out(entry_cases(), 4); }

namespace {

/// What edits change: a session with something to undo and to do again, and changes of a document.
struct Edited {
    Edited() {
        for (const char* const text : {"Nature", "Science"}) {
            CifEdits change(session.entries().document());
            change.set(*session.entries().document().items(0)[0], 0, text);
            session.apply(change.splices());
        }
        session.undo();
        edits.add(1, "_refine_ls_wR_factor_gt", "0.1");
    }
    const CifItem& item(const char* tag) const { return *reader.document().block(1).find(tag); }
    std::string state() const {
        return session.bytes() + std::to_string(session.changes().size()) + told(edits.splices());
    }

    EditSession session{entries_cif};
    EntryReader reader{entries_cif};
    CifEdits edits{reader.document()};
};

}  // namespace

TEST(AllocationFailure, LeavesEditsAsTheyWere) {
    const std::pair<const char*, void (*)(Edited&)> changes[] = {
        {"apply",
         [](Edited& e) {
             e.session.apply({{0, "data_global", "data_common"}});
         }},
        {"undo", [](Edited& e) { e.session.undo(); }},
        {"redo", [](Edited& e) { e.session.redo(); }},
        {"set", [](Edited& e) { e.edits.set(e.item("_cell_length_a"), 0, "a text of words"); }},
        {"add", [](Edited& e) { e.edits.add(1, "_cell_formula_units_Z_", "a text of words"); }},
        {"add a loop",
         [](Edited& e) {
             e.edits.add(1, "_a", std::vector<std::string>{"one", "two"});
         }},
        {"set rows",
         [](Edited& e) {
             const CifItem& label = e.item("_atom_site_label");
             e.edits.set_rows(label, {{1, {{&label, "C2"}}}, {0, {{&label, "C3"}}}});
         }},
    };
    for (const auto& [name, change] : changes) {
        for (unsigned int n = 1;; n += 1 + n / 32) {
            Edited edited;
            const std::string before = edited.state();
            const bool threw = throws_at(n, false, [&edited, &make = change] { make(edited); });
            if (!stop_failing()) break;
            if (!threw) continue;
            ASSERT_EQ(edited.state(), before) << name << ", allocation " << n;
            change(edited);
            ASSERT_NE(edited.state(), before) << name;
        }
    }
}

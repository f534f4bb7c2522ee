#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench/growth/Case.h"
#include "checks/CheckedEntry.h"
#include "checks/check_entries.h"
#include "entries/EntryReader.h"

namespace {

/// A check of the entry of a file in which `unit` stands again and again between two texts.
Case checked(const char* name, unsigned int size, const char* head, const char* unit,
             const char* tail, void (*check)(CheckedEntry& entry)) {
    return {std::string("checks: ").append(name), size, [=](unsigned int n) -> Operation {
                const auto bytes = std::make_shared<std::string>(head + numbered(unit, n) + tail);
                const auto reader = std::make_shared<EntryReader>(*bytes);
                const auto entry = std::make_shared<CifEntry>((*reader)[0]);
                return [=] {
                    static_cast<void>(bytes);
                    FoundFaults findings;
                    CheckedEntry checked(reader->document(), *entry, nullptr, findings);
                    check(checked);
                };
            }};
}

constexpr char authors[] = "data_a\nloop_\n_publ_author_name\n";
constexpr char journal[] = "data_a\n_journal_name_full\n;";
constexpr char doi[] = "data_a\n_journal_paper_doi\n;";
constexpr char sum[] = "data_a\n_chemical_formula_sum\n;";
constexpr char moiety[] = "data_a\n_chemical_formula_sum 'C H'\n_chemical_formula_moiety\n;";
constexpr char field_end[] = "\n;\n";
constexpr char sites[] =
    "data_a\n_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
    "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_Hall '-P 1'\n"
    "_cell_formula_units_Z 2\n_chemical_formula_sum 'C H'\nloop_\n_atom_site_label\n"
    "_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n";

constexpr char title[] = "data_a\n_publ_section_title\n;";

/// All checks of a file, which ends behind a text field if `head` begins one, and their repairs.
Case checked_file(const char* name, unsigned int size, const char* head, const char* unit) {
    return {std::string("check a file: ").append(name), size, [=](unsigned int n) -> Operation {
                const std::string tail = head == title ? field_end : "";
                const auto bytes = std::make_shared<std::string>(head + numbered(unit, n) + tail);
                const auto reader = std::make_shared<EntryReader>(*bytes);
                return [=] {
                    static_cast<void>(bytes);
                    static_cast<void>(repairs_of(check_entries(*reader)));
                };
            }};
}

}  // namespace

std::vector<Case> check_cases() {
    return {
        checked("authors", 500, authors, "'Blake#, A. J.'\n", "", check_publication),
        checked("authors of one name", 500, authors, "'Blake, A. J.' #\n", "", check_publication),
        checked("a long journal", 2000, journal, "Acta # ", field_end, check_publication),
        checked("a long DOI", 5000, doi, "doi: # ", field_end, check_publication),
        checked("a long sum", 2000, sum, "C# H NO cl ", field_end, check_formula),
        checked("many moieties", 1000, moiety, "2(C#H(CO)), ", field_end, check_formula),
        checked("sites", 1000, sites, "C# 0 0 .5\n", "", check_atoms),
        checked("wavelengths", 1000, "data_a\nloop_\n_diffrn_radiation_wavelength\n", "0.75 ", "",
                check_measurement),
        checked_file("blocks", 500, "", "data_#\n_cell_length_a x\n"),
        checked_file("blocks of one name", 500, "", "data_a\n_cell_length_a #x\n"),
        checked_file("unknown tags", 500, "data_a\n", "_cell_lenght_a_# 1\n"),
        checked_file("repeated tags", 500, "data_a\n", "_cell_length_a #\n"),
        checked_file("codes in a line", 2000, title, "\\q\\'z~#"),
        checked_file("bytes that are not UTF-8", 4000, title, "\xFF"),
        checked_file("letters beyond ASCII", 500, title, "\xCE\xB1"),
        checked_file("values beyond ASCII", 250, "data_a\nloop_\n_publ_section_title\n",
                     "'\xCE\xB1 #' "),
        checked_file("controls", 4000, title, "\x01"),
        checked_file("lone semicolons", 1000, "data_a\nloop_\n_t\n", " ; #\n"),
    };
}

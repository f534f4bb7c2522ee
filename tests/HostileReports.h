#pragma once

#include <cctype>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "entries/EntryReader.h"
#include "output/layouts.h"
#include "tasks/View.h"
#include "tasks/row_named.h"

/// Reports of an entry, of its comparison with another and of one by itself, with the text in all
/// places where others write texts.
inline std::string reports_with(const std::string& text, const char* target) {
    const std::vector<Field> fields = fields_named("Compound Name,Title,DOI,Cell Lengths,Color");
    const auto cif = [&](const std::string& end) {
        return "data_" + end +
               "#\n_cell_length_a 1\n_cell_length_b 2\n_cell_length_c 3\n_cell_angle_alpha "
               "90\n_cell_angle_beta 90\n_cell_angle_gamma 90" +
               "\n_journal_paper_doi 10.1/" + end + "%\n_chemical_name_systematic\n;" + text +
               "\n;\n_publ_section_title\n;" + text + ' ' + end + "\n;\n_exptl_crystal_colour\n;" +
               text + "\n;\n";
    };
    const std::string left_cif = cif("a"), right_cif = cif("b");
    const EntryReader left(left_cif), right(right_cif);
    const auto entries = make_entry_layout(*row_named(show_outputs(), target), true, fields);
    std::string reports =
        entries->add(entries->entry(text, "a#", EntryFields(left[0], fields).fields));
    const auto comparisons = make_comparison_layout(*row_named(compare_outputs(), target));
    const EntryComparison compared({"l", left[0], fields}, {"r", right[0], fields}, fields, {},
                                   true);
    reports += comparisons->add(
        comparisons->comparison({text, "a"}, {text, "b"}, PairingReason::name, compared));
    return reports + comparisons->add(comparisons->only({text, "a"}, Verdict::only_left));
}

/// Texts that would act in LaTeX, Markdown or HTML if nothing stood in for their signs.
inline const std::vector<std::string> hostile_texts = {
    "}\\end{description}\\input{x}%",
    "& \\\\ \\tabularnewline \\item[x] ] # $ ^ _ ~",
    "[*]\\else\\fi\\ifx",
    "# h\n\n- item\n\n    code\n\n```\nx\n\n> q",
    "a\n\n<script>alert(1)</script>\n\n</td></tr></table>\n\n# h #",
    "[a](javascript:b) ![c](d) <http://e.f> | --- |",
    "\x1B[2J\x80\u202E\u2028 &lt;b&gt; &#10;&#10;",
};

/// What LaTeX makes of a report but for its texts; a complaint where it could not.
inline std::string structure_of_latex(const std::string& report) {
    constexpr std::string_view in_texts =
        " leavevmode newline textbf textcolor textless textgreater textbar textasciitilde "
        "textasciicircum textbackslash textasciigrave textsuperscript textsubscript symbol ";
    std::string structure, braces;
    bool is_formula = false;  // of a Greek letter
    for (std::size_t i = 0; i < report.size(); ++i) {
        const char c = report[i];
        if (c == '\\') {
            const std::size_t begin = i + 1;
            while (std::isalpha(static_cast<unsigned char>(report[i + 1])) != 0) ++i;
            const std::string command = report.substr(begin, i + 1 - begin);
            if (command.empty() && report[++i] == '\\') structure += " row";
            if (is_formula || command.empty() ||
                in_texts.find(' ' + command + ' ') != in_texts.npos)
                continue;
            structure.append(" ").append(command);
            if (command == "begin" || command == "end") {
                structure += report.substr(i + 1, report.find('}', i) - i);
            }
        } else if (c == '{') {
            braces += c;
        } else if (c == '}') {
            if (braces.empty()) return "closed too often";
            braces.pop_back();
        } else if (c == '&') {
            structure += " &";
        } else if (c == '$') {
            is_formula = !is_formula;
        } else if (std::string_view("%#^_").find(c) != std::string_view::npos) {
            return "acts: " + report.substr(i);
        }
    }
    return braces.empty() ? structure : "not closed";
}

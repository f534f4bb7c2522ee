#include "output/ReportMedium.h"

#include <span>

#include "tasks/row_named.h"

namespace {

using Table = ReportMedium::Table;

/// Where hyperref is not loaded, the text alone. A sign of comments in the branch that is not taken
/// would hide its end.
std::string latex_link(const std::string& mark_up, const std::string& address) {
    std::string link = "\\ifdefined\\href\\href{";
    for (const char c : address) {
        if (c == '%' || c == '#') link += '\\';
        link += c;
    }
    return link.append("}{").append(mark_up).append("}\\else ").append(mark_up).append("\\fi");
}

std::string markdown_link(const std::string& mark_up, const std::string& address) {
    return "[" + mark_up + "](<" + address + ">)";
}

constexpr Table latex_table(const char* before_table) {
    return {
        .table = {before_table, "\\end{tabular}\\par\n"},
        .row = {"", "\\\\\n"},
        .label = {"", ""},
        .head = {" & ", ""},
        .cell = {" & ", ""},
        .note = {" & \\multicolumn{4}{l@{}}{", "}\\\\\n"},
    };
}

// LaTeX's own tables break between no pages: each row is one.
constexpr Table latex_sides = {
    .table = {"", ""},
    .row = {"\\smallskip\\noindent\\begin{tabular}{@{}p{0.2\\linewidth}p{0.36\\linewidth}"
            "p{0.36\\linewidth}@{}}\n",
            "\\tabularnewline\n\\end{tabular}\\par\n"},
    .label = {"\\raggedright ", ""},
    .head = {" &\n\\raggedright ", ""},
    .cell = {" &\n\\raggedright ", ""},
    .note = {"\\nobreak\\noindent\\begin{tabular}{@{}p{0.2\\linewidth}p{0.74\\linewidth}@{}}\n"
             " &\n\\raggedright ",
             "\\tabularnewline\n\\end{tabular}\\par\n"},
};

/// CommonMark has no tables, but those of HTML stand in it for themselves.
constexpr Table html_table(const char* before_note) {
    return {
        .table = {"<table>\n", "</table>\n\n"},
        .row = {"<tr>", "</tr>\n"},
        .label = {"<th>", "</th>"},
        .head = {"<th>", "</th>"},
        .cell = {"<td>", "</td>"},
        .note = {before_note, "</td></tr>\n"},
    };
}

constexpr ReportMedium media[] = {
    {.name = "latex",
     .cells = "latex",
     .line_end = "\\newline{}",
     .title = {"\\section*{", "}\n"},
     .subtitle = {"\\subsection*{", "}\n"},
     .paragraph = {"\\noindent ", "\\par\n"},
     .list = {"\\begin{description}\n", "\\end{description}\n"},
     .row = {"\\item[{", "\n"},
     .behind_label = "}] ",
     .found = {"\\newline ", ""},
     .unit = "~",
     .link = latex_link,
     .cell = latex_table("\\noindent\\begin{tabular}{@{}lrrrl@{}}\n"),
     .wide_cell = {" & \\multicolumn{3}{l}{", "}"},
     .counts = latex_table("\\noindent\\begin{tabular}{@{}lrrrrr@{}}\n"),
     .sides = latex_sides},
    // An empty line would end a table of HTML, and what stands behind it be Markdown.
    {.name = "markdown",
     .cells = "html5",
     .line_end = "&#10;",
     .title = {"## ", "\n\n"},
     .subtitle = {"### ", "\n\n"},
     .paragraph = {"", "\n\n"},
     .list = {"", "\n"},
     .row = {"- ", "\n"},
     .behind_label = ": ",
     .found = {"\n  - ", ""},
     .unit = " ",
     .link = markdown_link,
     .cell = html_table("<tr><td></td><td colspan=\"4\">"),
     .wide_cell = {"<td colspan=\"3\">", "</td>"},
     .counts = html_table("<tr><td></td><td colspan=\"5\">"),
     .sides = html_table("<tr><td></td><td colspan=\"2\">")},
};

}  // namespace

const ReportMedium* report_medium_of(const RichTextTarget& target) {
    return row_named(std::span<const ReportMedium>(media), target.name);
}

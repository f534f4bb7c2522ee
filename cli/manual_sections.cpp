#include "cli/manual_sections.h"

namespace {

constexpr ManualSection::Entry statuses[] = {
    {"0",
     "all went well, doubts about what was read aside; in search and find something matched, in "
     "compare nothing differs that counts, in check nothing was found, in set something was "
     "changed"},
    {"1",
     "something was reported, and the rest done; in search and find nothing matched, in compare "
     "something differs, in check something was found, in set there was nothing "
     "to change"},
    {"2",
     "wrong usage; in search, find, compare, check and set also what was reported, and in check a "
     "file that is not CIF"},
};

constexpr ManualSection::Entry variables[] = {
    {"NO_COLOR", "when it is not empty, unicode instead of ansi is written to terminals"},
    {"TERM", "likewise when it is dumb"},
};

constexpr ManualSection::Entry files[] = {
    {"*.cif, *.cif.gz",
     "what show, find, compare, check and set read of a folder: files with such names, in any "
     "case, in the order of their names, but no hidden ones; with --recursive then those of the "
     "folders in it. Links are "
     "followed; of a folder that is named each file is read once, however many links lead to it"},
    {"*.gz",
     "gzip files are known by how they begin, on standard input too, and unpacked while they are "
     "read; a file with such a name that is none is refused, and so is one that unpacks to more "
     "than 64 MB and 200 times its size, or to a CIF file of more than 1 GB"},
    {"*.cif~", "what set --backup keeps: a file as it was before"},
    {"*.csv",
     "tables as RFC 4180 has them, in UTF-8, as plain text like that of unicode. A cell that "
     "begins "
     "with =, +, - or @ and is no number begins with ', so that no spreadsheet takes it for a "
     "formula"},
    {"*.tsv",
     "the same with tabs between the cells, where \\t stands for a tab, \\n and \\r for line ends "
     "and "
     "\\\\ for a backslash"},
};

constexpr ManualSection::Entry examples[] = {
    {"A page of all entries in a folder and the folders in it, made by two threads",
     "lmrtext show --recursive --jobs 2 -o page.html structures/"},
    {"A table of cells for a spreadsheet, of the files that another program finds",
     "find . -name '*.cif.gz' -print0 |\n"
     "    lmrtext show -0 --files-from - --fields 'cell lengths,cell angles' -o cells.csv"},
    {"The files in which an author has worked with a cell near this one",
     "lmrtext find author:cisarova --and cell:22.7,22.7,13.5 --list --recursive structures/"},
    {"What has changed in a folder, small changes of numbers aside",
     "lmrtext compare --tolerance 0.01 before/ after/"},
    {"What may be wrong in a folder, by kinds of faults, and what can be mended safely",
     "lmrtext check --summary --level note --recursive structures/\n"
     "lmrtext check --fix --level note structures/"},
    {"A name of an author corrected in all files, once the changes have been seen",
     "lmrtext set --field 'Author(s)' --replace Mueller --value Müller --dry-run structures/\n"
     "lmrtext set --field 'Author(s)' --replace Mueller --value Müller structures/"},
    {"Many fields of many files, changed in an editor",
     "lmrtext show --to json structures/ >edits.json\n"
     "editor edits.json\n"
     "lmrtext set --edits edits.json --backup"},
    {"Two structures of one file, as a page",
     "lmrtext compare -o page.html both.cif:I both.cif:II"},
    {"The names of a list in which a part of a name occurs",
     "lmrtext search --how substring --term glucopyranoside --matching names.txt.gz"},
};

constexpr ManualSection::Entry others[] = {{"find(1)", ""}, {"gzip(1)", ""}, {"parallel(1)", ""}};

using Form = ManualSection::Form;

constexpr ManualSection sections[] = {
    {"Exit status", Form::definitions, statuses},
    {"Environment", Form::definitions, variables},
    {"Files", Form::definitions, files},
    {"Examples", Form::commands, examples},
    {"See also", Form::list, others},
};

}  // namespace

std::span<const ManualSection> manual_sections() { return sections; }

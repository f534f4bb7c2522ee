#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
    {"not-cif", Level::error, "this is not a CIF file",
     "What stands there follows no rule of CIF files: a value without a tag, a tag without a "
     "value, or no data block. Nothing behind it is checked.",
     "_cell_length_a 5 6\n", "_cell_length_a '5 6'\n"},
    {"not-terminated", Level::error, "a quotation or text field does not end",
     "The quotes that open a value are not closed in its line, or no line with a semicolon at its "
     "beginning ends a text field. Nothing behind it is checked.",
     "_chemical_name_common 'urea\n", "_chemical_name_common 'Hell's salt'\n"},
    {"loop-not-full", Level::error, "the last row of the loop is not full",
     "The number of values of a loop is not a multiple of the number of its tags: a value is "
     "missing, or one with blanks has no quotes. Nothing behind it is checked.",
     "loop_\n_atom_site_label\n_atom_site_fract_x\nC1 0.5 C2\n",
     "loop_\n_atom_site_label\n_atom_site_fract_x\nC1 0.5 C2 ?\n"},
    {"item-twice", Level::error, "the item is given again",
     "A block holds an item once. Readers differ in which value they take; here the first counts.",
     "_cell_length_a 5\n_cell_length_a 6\n", "_cell_length_a 5\n_cell_length_b 6\n"},
    {"value-missing", Level::error, "the item has no value",
     "The tag stands alone. A question mark is the value of what is not known.",
     "_cell_length_a\n_cell_length_b 5\n", "_cell_length_a ?\n_cell_length_b 5\n"},
    {"loop-empty", Level::error, "the loop has no rows",
     "A loop has tags and no values, which CIF does not allow.",
     "loop_\n_publ_author_name\n_publ_author_footnote\n",
     "loop_\n_publ_author_name\n_publ_author_footnote\n? ?\n"},
    {"block-empty", Level::warning, "the block is empty",
     "A data block holds nothing: a file was cut, or a heading was left behind.",
     "data_I\ndata_II\n_cell_length_a 5\n",
     "data_I\n_cell_length_a ?\ndata_II\n_cell_length_a 5\n"},
    {"block-twice", Level::error, "a block before has this name",
     "The blocks of a file have different names; case does not count.",
     "data_I\n_cell_length_a 5\ndata_i\n_cell_length_a 6\n",
     "data_I\n_cell_length_a 5\ndata_II\n_cell_length_a 6\n"},
    {"tag-misspelt", Level::warning, "a known tag is written like this one",
     "The tag is known to no dictionary, and one that is differs by one letter that was added, "
     "left out, changed or exchanged with its neighbour. Digits, short words and plurals are taken "
     "for what they are.",
     "_cell_lenght_a 5\n", "_cell_length_d 5\n"},
    {"lone-semicolon", Level::warning, "a semicolon alone is the value",
     "';' begins or ends a text field only at the beginning of a line.",
     "_chemical_name_common ;\n", "_chemical_name_common\n;\nurea\n;\n"},
    {"semicolon-in-field", Level::warning, "a line of the text field begins with a semicolon",
     "Other readers may take the semicolon for the end of the text field, and what follows for "
     "tags and values.",
     "_publ_section_title\n;Two\n;lines\n;\n", "_publ_section_title\n;Two\n lines;\n;\n"},
};

}  // namespace

std::span<const CheckCode> file_codes() { return codes; }

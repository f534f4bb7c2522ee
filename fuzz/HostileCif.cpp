#include "fuzz/HostileCif.h"

#include <iterator>

namespace {

// "@" stands for 700 times "abc", "\351" and its like for bytes of Latin-1.
const char* const bodies[] = {
    // Quotes, and what looks like something else between them.
    "data_quotes\n_q_bare x'y\"z\n_q_single 'it's'\n_q_double \"say \"x\"y\"\n_q_none ''\n"
    "_q_nothing \"\"\n_q_hash 'a'#comment\n_q_no_comment a#b\n_q_null '?'\n_q_dot \".\"\n"
    "_q_unknown ?\n_q_inapplicable .\n_q_tag '_a b'\n_q_loop \"loop_\"\n_q_data 'data_x'\n"
    "_q_blanks '  x '\n_q_semicolon ;\n_q_more ;x _q_number 1.2(3) _q_apostrophe 5' _q_both "
    "\"'\"\n",
    // Text fields at every edge.
    "data_fields\n_f_first\n;at the\nfirst\n;\n_f_next\n;\n;\n_f_blank\n;\n\n;\n_f_one\n;one\n;\n"
    "_f_behind\n; x\n; _f_same_line y\n_f_quotes\n; 'a' \"b\" '''c'''\n_d _e\nloop_ data_x #\n;\n"
    "_f_blanks\n;  \n \t\n  ;no end\n;\n_f_last\n;the\nlast\n;\n",
    // Text fields in loops, the first thing and the last.
    "data_loops_of_fields\nloop_\n_l_a\n_l_b\n;first\n;\n;second\n;\n1\n;\nthird\n\n;\n"
    ";fourth\n; 2 ? .\n'x y' # with a comment\n; ; \n;\nloop_ _m_a _m_b\n;x\n;\n;\ny\n;\n",
    // Folded lines, and backslashes that fold nothing.
    "data_folded\n_f_folded\n;\\\none \\\nline\n;\n_f_end\n;\\\nline\\\n\n;\n_f_only\n;\\\n;\n"
    "_f_not\n; \\\nnot\\\nfolded\n;\n_f_first\n;a\\\nb\\\n;\n_f_backslash \\\n_f_codes "
    "'\\'a\\\"o\\'\n"
    "_f_escaped\n;\\\nends with \\\\\n\nnext\n;\n_f_blank\n;\\ \nfolded \\\t\nwith blanks\n;\n"
    "_f_semicolons\n;\\\na\\\n ;b\n;\n",
    // Comments wherever they may be.
    "# first\n   # second ' \" ;\ndata_comments # third\n#fourth\n_c_a # fifth\n# ; sixth\n1 # "
    "seventh\n"
    "_c_b\n#eighth\n'x' #ninth _c_no 1\nloop_ # tenth\n_c_c#d\n# eleventh\n_c_e #twelfth\n#13\n1 "
    "#14\n#15\n"
    "2 # 16\n 3 4\n# 17\n5\n#18\n;six\n; #19\n#20\n7 8\n#\n_c_last\n# 21\n;\n# no comment\n;#22\n",
    // Loops in every shape.
    "data_shapes\nloop_\n_s_a _s_b\n_s_c\n1 2 3 4\n5\n6\n\n7 8\n9 10 11 12\nloop_ _s_one 1 2 3\n"
    "  4\nloop_\n_s_single\n x\nloop_\n_s_row _s_col 1 2\nloop_ _s_none # "
    "_no_tag\n_s_nothing\nloop_\n"
    "_s_x\n_s_y\n  a   'b c'\n  dd  e\n  ?   .\n_s_pair 1 _s_other 2\nloop_\n\t_s_tab\n\t_s_two\n"
    "\t1\t2\n\t3\t4",
    // Blocks, save frames, an empty block, an item twice, keywords in capitals.
    "data_first\n_cell_length_a 1.0\nsave_frame\n_cell_length_b 2\nloop_\n_f_a\n1\n2\nsave_\n"
    "_cell_length_c 3\n_c_missing\nDATA_Second\nLOOP_\n_b_a\n_B_b\n1 2\n_cell_length_a 5 "
    "_cell_length_a '6'\n"
    "data_empty\n# nothing\nData_frames\nSAVE_x\n_a 1\nSave_\nsave_y\n_a 2\nsave_\ndata_last _x y\n"
    "data_first\n_again yes\ndata_\n_x 1\n",
    // Words that begin as keywords do, and characters with a meaning.
    "data_words\n_w_a dat _w_b 'loop_x' _w_c \"save_\" _w_d \"stop_\" _w_e 'global_' _w_f data\n"
    "_w_g '$x' _w_h x$ _w_i '[1 2]' _w_j \"]\" _w_k '#' _w_l x_y _w_m -0.5e-3 _w_n "
    "`~!@%^&*()=+|<>,/\n"
    "_w_o '{a:b}'\n_w_p \"\\\"\n_w_q '\t'\n",
    // Long lines, UTF-8 and bytes of Latin-1.
    "data_bytes\n_b_long @\n_b_quoted '@ x'\n_b_field\n;@\n@ \n;\n_b_utf8 'M\xC3\xBCller "
    "\xE2\x82\xAC'\n"
    "_b_latin 'M\374ller'\n_b_in_field\n;\xC3\x85\n\305\n;\n# \xC3\xA9 and \351\nloop_\n_b_names\n"
    "'\xF0\x9F\x92\x8E'\n'caf\351'\nx\n'@' _b_behind 1 # long\n",
    // Blanks of every kind; a lone carriage return is one.
    "\n\n \t\ndata_blanks\t\t\n\n_b_a\t1\r_b_b\r2\n\n\n   _b_c  \t "
    "'x'\t\n\tloop_\t_b_d\r_b_e\t1\r2\t3\n\n4\n"
    "  \n\t\n_b_f\n\n\n  5  \n_b_g\n\n;x\n;\t\t\n \n",
    // As files of journals are: names padded, loops of categories, persons and a common block.
    "data_global\n_journal_year                    2007\n_journal_page_first              'o1234'\n"
    "loop_\n_publ_author_name\n_publ_author_address\n  'M\\\"uller, A.'\n;\n University\n of X\n;\n"
    "  'O'Neil, B.' ?\n_publ_section_title\n;\n A title: $\\alpha$-x\n;\n\ndata_I\n"
    "_cell_length_a                   10.234(5) # measured\n_cell_length_b                   11\n"
    "_chemical_name_systematic        ?\n_chemical_formula_sum            'C12 H10'\nloop_\n"
    "    _atom_site_label\n    _atom_site_fract_x\n    C1 0.1(2)\n    C2 . # not found\n\n#END\n",
    // CIF 2: quotes of three over lines.
    "#\\#CIF_2.0\ndata_three\n_t_a '''one\ntwo'''\n_t_b \"\"\"it's \"\"so\"\"\n\n\"\"\"\n_t_c "
    "''''x'''\n"
    "_t_none '''''' _t_null '''?''' _t_dot \"\"\".\"\"\"\n_t_single "
    "'a#b'#comment\n_t_field\n;\nx\\\n;\n"
    "loop_\n_t_d\n_t_e\n'''\n; no field\n'''   \"\"\"x\"\"\" # y\n'a b'\n\"c\"\n_t_name "
    "\xC3\xA9t\xC3\xA9\n",
    // CIF 2: lists and tables.
    "#\\#CIF_2.0\n#comment\ndata_lists\n_l_list [1 2 'three' [4 ?] \"a]b\" ]\n_l_none []\n"
    "_l_table {'a':1 \"b c\":[x y] '''d''':{\"e\":'f'}}\n_l_lines [\n# within\n  1\n;\n]\n;\n "
    "2\n]\n"
    "loop_\n_l_a\n_l_b\n[1\n2] {'x':.} # [\n{} [[[]]]\n_l_quoted '[1 2]'\n_l_brace \"{\"\n_l_last "
    "x\n",
};

std::string with_long_words(std::string text) {
    std::string word;
    for (int i = 0; i < 700; ++i) word += "abc";
    for (std::size_t at = 0; (at = text.find('@', at)) != text.npos; at += word.size()) {
        text.replace(at, 1, word);
    }
    return text;
}

/// Every line, or every third, ends with "\r\n".
std::string with_carriage_returns(const std::string& text, bool every) {
    std::string with;
    std::size_t line = 0;
    for (const char c : text) {
        if (c == '\n' && (every || ++line % 3 == 0)) with += '\r';
        with += c;
    }
    return with;
}

}  // namespace

const std::size_t hostile_cifs = 4 * std::size(bodies);

std::string hostile_cif(std::size_t number) {
    std::string body = with_long_words(bodies[number / 4]);
    const bool ends_line = body.back() == '\n';
    switch (number % 4) {
        case 0:
            return body;
        case 1:
            return with_carriage_returns(body, true) + "\r\n\r\n";
        case 2:
            return body.substr(0, body.size() - (ends_line ? 1 : 0));
        default:
            return "\xEF\xBB\xBF" + with_carriage_returns(body, false) + (ends_line ? "" : "\n") +
                   "\n \t\n# the end";
    }
}

#include <string>
#include <vector>

#include "checks/CheckCode.h"
#include "entries/written_value.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode constant_codes[] = {
    {"unknown-code", Level::warning, "unknown code",
     "A backslash begins no code of CIF text. The text is shown with the backslash.",
     "_chemical_name_systematic '\\jamine'\n", "_chemical_name_systematic '\\h-amine'\n"},
    {"unknown-reference", Level::warning, "reference to no character",
     "What stands between '&' and ';' names or numbers no character.",
     "_chemical_name_systematic '&alpah;-amine'\n", "_chemical_name_systematic '&alpha;-amine'\n"},
    {"lone-mark", Level::warning, "no partner for a mark",
     "'~' and '^' open and close a subscript or superscript, tags such as <i> and </i> a style. "
     "One without partner is shown as it stands.",
     "_chemical_name_systematic 'H~2O'\n", "_chemical_name_systematic 'H~2~O'\n"},
    {"not-utf8", Level::warning, "not UTF-8",
     "The bytes are those of another encoding, often Latin-1. Which one cannot be told for sure.",
     "_publ_author_name 'M\xFCller, A.'\n", "_publ_author_name 'M\xC3\xBCller, A.'\n"},
    {"more-codes-in-doubt", Level::warning, "more codes are in doubt",
     "A text in which more than ten codes are in doubt is likely to be none in CIF's codes.",
     "_chemical_name_systematic '\\j \\j \\j \\j \\j \\j \\j \\j \\j \\j \\j'\n",
     "_chemical_name_systematic '\\j \\j \\j \\j \\j \\j \\j \\j \\j \\j'\n"},
    {"not-ascii", Level::warning, "a character beyond ASCII",
     "Only files that declare version 2 of CIF may hold characters beyond ASCII. In those of "
     "version 1 codes stand for them, such as \\\"u for u with two dots; where all have one, they "
     "are the repair.",
     "_publ_author_name 'M\xC3\xBCller, A.'\n", "_publ_author_name 'M\\\"uller, A.'\n"},
    {"control-character", Level::error, "a character that no CIF file may hold",
     "Control characters other than tabs and line ends are left over from other formats.",
     "_chemical_name_common 'ur\x02"
     "ea'\n",
     "_chemical_name_common 'ur\tea'\n"},
    {"html-entity", Level::note, "a reference of HTML for a character that has a code",
     "Readers of CIF know the codes; references such as &alpha; are those of web pages.",
     "_chemical_name_systematic '&alpha;-D-glucose'\n",
     "_chemical_name_systematic '\\a-D-glucose &lt;1&gt;'\n"},
    {"blanks-doubled", Level::note, "more than one blank",
     "Names and titles have one blank between words.", "_publ_author_name 'Smith,  A.'\n",
     "_publ_author_name 'Smith, A.  '\n"},
    {"lone-bracket", Level::warning, "no partner for a bracket",
     "Each bracket of the name of a compound has its partner, and they stand within each other.",
     "_chemical_name_systematic 'bis(2-ethyl(hexyl) ether'\n",
     "_chemical_name_systematic 'bis(2-ethyl[hexyl]) ether'\n"},
    {"lone-quote", Level::note, "no partner for a quotation mark",
     "Quotation marks in titles and sentences stand in pairs; those behind digits are inches or "
     "seconds, those behind a backslash codes.",
     "_publ_section_title 'The \"pyridine effect'\n",
     "_publ_section_title 'The \"pyridine effect\" of M\\\"uller'\n"},
    {"latin-for-greek", Level::note, "a Latin letter that may stand for a Greek one",
     "The m of a bridging ligand is a mu, the h of hapticity an eta, the k before a donor atom a "
     "kappa: m before the name of a ligand that bridges, or m, h and k with a number behind them.",
     "_chemical_name_systematic 'bis(m-dppm)dipalladium'\n",
     "_chemical_name_systematic 'm-cresol'\n"},
    {"spelt-otherwise", Level::note, "the name is spelt otherwise in another block",
     "Names of people and substances in the blocks of a file are compared without case, accents, "
     "dashes and blanks.",
     "data_I\n_publ_author_name 'M\\\"uller, A.'\ndata_II\n_publ_author_name 'Muller, A.'\n",
     "data_I\n_publ_author_name 'M\\\"uller, A.'\ndata_II\n_publ_author_name 'M\\\"uller, A.'\n"},
};

}  // namespace

// Examples with long lines are made.
std::span<const CheckCode> text_codes() {
    static const std::string item = "_chemical_name_systematic ";
    static const std::string longest =
        item + std::string(longest_cif_line - item.size(), 'a') + "\n";
    static const std::string longer =
        item + std::string(longest_cif_line - item.size() + 1, 'a') + "\n";
    static const std::vector<CheckCode> codes = [] {
        std::vector<CheckCode> all(std::begin(constant_codes), std::end(constant_codes));
        all.push_back({"line-too-long", Level::warning, "the line is too long",
                       "A line of a CIF file has up to 2,048 characters; other readers may cut it.",
                       longer.c_str(), longest.c_str()});
        return all;
    }();
    return codes;
}

#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
    {"unknown-code", Level::warning, "unknown code",
     "A backslash begins no code of CIF text. The text is shown with the backslash.",
     "_chemical_name_systematic '\\qamine'\n", "_chemical_name_systematic '\\h-amine'\n"},
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
     "_chemical_name_systematic '\\q \\q \\q \\q \\q \\q \\q \\q \\q \\q \\q'\n",
     "_chemical_name_systematic '\\q \\q \\q \\q \\q \\q \\q \\q \\q \\q'\n"},
};

}  // namespace

std::span<const CheckCode> text_codes() { return codes; }

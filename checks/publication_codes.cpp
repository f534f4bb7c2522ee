#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode rows[] = {
    {"author-unclear", Level::note, "given names and surname cannot be told apart",
     "A name is read as \"Surname, Given\", \"Given Surname\" or \"A.B.Surname\". Where a form "
     "allows several readings, or names no person, the name is kept as it is written, and is not "
     "found under its surname.",
     "_publ_author_name 'Smith D Yu'", "_publ_author_name 'Smith, D. Yu'"},
    {"author-repeated", Level::warning, "this person is among the authors before",
     "Names are compared without case, accents and punctuation: surname and all given names are "
     "the same, and these are more than one initial. The list may have been put together from "
     "two.",
     "loop_\n_publ_author_name\n'Blake, Alexander J.'\n'Yin, L.'\n'Blake, Alexander J.'",
     "loop_\n_publ_author_name\n'Blake, Alexander J.'\n'Yin, L.'\n'Blake, Alexander K.'"},
    {"author-alike", Level::note, "this person may be among the authors before",
     "The surnames are the same without case, accents and punctuation, and the given names can "
     "stand for each other, as \"A.\" for \"Anne\"; or the words are the same in another order. "
     "Two people may have such names.",
     "loop_\n_publ_author_name\n'Blake, A.'\n'Blake, Anne B.'",
     "loop_\n_publ_author_name\n'Blake, A.'\n'Blake, Beth A.'"},
    {"pages-reversed", Level::warning, "the last page is before the first",
     "Pages are numbers with letters around them, such as \"o123\". A last page with fewer digits "
     "may be abbreviated: \"1234\" and \"38\" are in order.",
     "_journal_page_first 1238\n_journal_page_last 1234",
     "_journal_page_first 1234\n_journal_page_last 38"},
    {"pages-unlike", Level::warning, "first and last page are of different kinds",
     "Journals that number their pages in several rows put letters before them. An article stands "
     "in one row.",
     "_journal_page_first i136\n_journal_page_last o138",
     "_journal_page_first i136\n_journal_page_last 138"},
    {"year-invalid", Level::warning, "not a year of publication",
     "The year has four digits and lies between 1890 and 2100.", "_journal_year 20004",
     "_journal_year 2004"},
    {"year-late", Level::note, "published long after the file was made",
     "The year of the journal is more than five years behind the one of _audit_creation_date. "
     "Either may be mistyped, or the date left from a template.",
     "_audit_creation_date 2004-07-09\n_journal_year 2024",
     "_audit_creation_date 2004-07-09\n_journal_year 2009"},
    {"volume-is-year", Level::note, "the volume is the year",
     "Few journals count their volumes by years; those known to are not told of. Where there is no "
     "volume, some programs write the year.",
     "_journal_name_full 'Inorganic Chemistry'\n_journal_volume 2004\n_journal_year 2004",
     "_journal_name_full 'Eur. J. Inorg. Chem.'\n_journal_volume 2004\n_journal_year 2004"},
    {"journal-misspelt", Level::warning, "a known journal has a name like this one",
     "Names and abbreviations of journals that publish crystal structures are known. This one is "
     "none of them, and is one of them but for one letter of a word of five letters or more.",
     "_journal_name_full 'Power Diffraction'", "_journal_name_full 'Powder Diffraction'"},
    {"doi-decorated", Level::warning, "more than the DOI",
     "The value is the DOI alone, without the address of a service, \"doi:\", blanks or a full "
     "stop.",
     "_journal_paper_doi https://doi.org/10.1107/S0108270103025769",
     "_journal_paper_doi 10.1107/S0108270103025769"},
    {"doi-malformed", Level::warning, "not a DOI",
     "A DOI is \"10.\", four to nine digits, a stroke and printing characters of ASCII without "
     "blanks.",
     "_journal_paper_doi 101107/S0108270103025769",
     "_journal_paper_doi '10.1002/(SICI)1521-3749(199801)624:1<1::AID-ZAAC1>3.0.CO;2-#'"},
};

}  // namespace

std::span<const CheckCode> publication_codes() { return rows; }

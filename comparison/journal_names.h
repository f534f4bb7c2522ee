#pragma once

#include <string>
#include <string_view>

/// Whether two names may be of one journal: but for case, accents, punctuation, articles and the
/// like, each word is the other's or its abbreviation, which begins it or leaves out letters within
/// it: "Acta Cryst. C" and "Acta Crystallographica Section C", "Proc. Natl. Acad. Sci." Letters
/// and numbers of sections agree; what follows these may be left out, as may volumes and years in
/// parentheses. Linear in the lengths.
bool may_be_one_journal(std::string_view left, std::string_view right);

/// The words that tell a journal from others, folded, with blanks between: "acta cryst c". Linear.
std::string journal_words(std::string_view name);

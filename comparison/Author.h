#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/StringSlice.h"

/// One of a list of people. All but the range and the text is folded.
struct Author {
    StringSlice range{0, 0};         ///< Of the text of the list.
    std::string_view text;           ///< That range of it.
    bool is_name = false;            ///< Given names and surname are told apart.
    std::vector<std::string> given;  ///< "anne", or "a" where there is no more.
    std::string surname;       ///< In letters: "vondreele"; the whole name where it is doubtful.
    std::string with_umlauts;  ///< Likewise, with "ae" for "ä".
    std::string core;          ///< The surname without what leads it: "dreele".
    std::string last_word;     ///< Of the surname, behind the initials of all before it.
    std::string all_words;     ///< In alphabetical order, initials behind them; or empty.
    std::string suffix;        ///< "jr".

    /// The first letters of up to as many given names.
    std::string initials(std::size_t most = std::string::npos) const;
};

/// The people of a list with "; ", ", " or " and " between them: "A.J.Blake, L.-H.Yin",
/// "Blake, A. J.; Yin, L.-H.", "Anne B. Smith, J.Smith Jr", "Blake, A. J., Yin, L.-H.".
/// The text must outlive them. Linear in its length.
std::vector<Author> read_authors(std::string_view text);

/// A name that stands by itself, which may have commas; its range is all of it. Likewise.
Author read_author(std::string_view name);

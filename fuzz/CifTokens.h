#pragma once

#include <cstddef>
#include <string_view>

inline bool is_cif_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// The tokens of a CIF file of either version, one after the other; lists and tables are whole.
class CifTokens {
public:
    enum Kind { end, comment, word, value };

    CifTokens(std::string_view bytes, bool is_version_2)
        : bytes_(bytes), is_version_2_(is_version_2) {}

    /// The next; `raw` is what stands there. A word is a tag, a keyword or a bare value. Throws
    /// std::runtime_error for what is none.
    Kind next(std::string_view& raw);

private:
    bool is_at(std::string_view what) const { return bytes_.compare(at_, what.size(), what) == 0; }
    /// The blanks here.
    void pass_blanks();
    /// What begins here, and its closing.
    void pass(std::string_view closing, std::size_t opening_size);
    void pass_quoted(std::string_view quote);
    /// A list or table with all that is in it.
    void pass_brackets();
    Kind pass_token(std::string_view separators);

    std::string_view bytes_;
    bool is_version_2_;
    std::size_t at_ = 0;
};

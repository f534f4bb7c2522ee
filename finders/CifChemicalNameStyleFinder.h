#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a chemical name in the text conventions of CIF files: subscripts between
/// "~", superscripts between "^", both markers invisible, and Greek letters as a backslash and a
/// letter. What a letter is, the host's Regex says; which one it is when it is a capital, the
/// process's current locale.
class CifChemicalNameStyleFinder : public InputTextStyleFinder {
public:
    ~CifChemicalNameStyleFinder() override;

    /// What stands between two markers, without them; it may be empty. A marker left over stays
    /// text.
    /// @{
    void subscripts(std::vector<StringSlice>& out) const override;
    void superscripts(std::vector<StringSlice>& out) const override;
    /// @}
    /// The two markers of each subscript, then of each superscript.
    void invisible(std::vector<StringSlice>& out) const override;
    /// Each covers a backslash and its letter, of either case; "\D" and "\L" are the capitals. "\f"
    /// is delta; a letter that stands for nothing, such as that of "\d", gives a slice with
    /// no_symbol.
    void greek(std::vector<GreekSlice>& out) const override;
    /// Finds everything once, for the queries to copy: three passes of the host's Regex. Throws
    /// what Regex throws.
    void calc_tag_positions() override;

private:
    std::vector<GreekSlice> greek_;
    std::vector<StringSlice> subscripts_;
    std::vector<StringSlice> superscripts_;
    std::vector<StringSlice> invisible_;
};

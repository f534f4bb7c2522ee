#pragma once

#include "finders/InputTextStyleFinder.h"
#include "host/THandle.h"
#include "search/TextSearch.h"

/// Highlights the matches of a search in a field's text, beside the styles that another finder sees
/// in it: matches are bold and green4 when the search says that the text matched, else blue. Set
/// the term before the text. Search and finder are shared with whoever holds their handles.
class TextSearchStyleFinder : public InputTextStyleFinder {
public:
    /// Every later use of a null handle raises its error.
    TextSearchStyleFinder(THandle<TextSearch> search, THandle<InputTextStyleFinder> finder);
    ~TextSearchStyleFinder() override;

    /// The term of the texts to come; the matches of the present one stay.
    void set_search_term(const std::string& term);
    /// Whether the search said that the present text matched; false before the first text.
    bool match_exact() const { return match_exact_; }

    /// The finder's bold slices and the matches, merged where they overlap.
    void bold(std::vector<StringSlice>& out) const override;
    /// What the finder reports.
    /// @{
    void italic(std::vector<StringSlice>& out) const override;
    void subscripts(std::vector<StringSlice>& out) const override;
    void superscripts(std::vector<StringSlice>& out) const override;
    void overstrike(std::vector<StringSlice>& out) const override;
    void invisible(std::vector<StringSlice>& out) const override;
    void replacement_text(std::vector<ReplacementTextSlice>& out) const override;
    void greek(std::vector<GreekSlice>& out) const override;
    /// @}
    /// The finder's colours, then the matches.
    void color(std::vector<ColorSlice>& out) const override;
    /// Searches the text and trims each match until it crosses no style of the finder; one strictly
    /// within an invisible, replaced or Greek stretch is dropped. O((m + k) log m) for m styles and
    /// k disjoint matches, beside search and finder. Throws what these throw; the matches then stay
    /// as the search gave them.
    void calc_tag_positions() override;

private:
    THandle<TextSearch> search_;
    THandle<InputTextStyleFinder> finder_;
    bool match_exact_ = false;
    std::vector<StringSlice> matches_;
};

/// The larger of the two pieces into which the end of `style` that lies in `match` cuts it, of
/// equal ones the piece outside `style`. The two must cross: others give no useful slice, or throw
/// what StringSlice throws.
StringSlice call_remove_overlap(const StringSlice& match, const StringSlice& style);

#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "host/THandle.h"
#include "text/StyleNodes.h"

class GreekStyle;
class InputTextStyleFinder;
class ReplacementTextStyle;
class RichTextGenerator;
class TextAtom;
class TextAtomPropertyBuilder;
class TextItemStyle;

/// Rich text: one plain string with styles laid on slices of it, which its finder reads out of the
/// string or the creators add. No two styles ever cross, so that every item can be written as
/// properly nested mark-up; a style that would break this is refused and the item left as it was.
///
/// Positions count characters (bytes) of text(). Every refusal is a std::range_error; a null finder
/// handle raises the handle's own error. Texts may have up to 4294967294 characters; longer ones
/// throw std::length_error.
class TextItem {
public:
    /// Black is also the colour of text without a colour style. Targets that know no colours leave
    /// these styles out.
    enum ColorName : int {
        black,
        red,
        blue,
        green,
        yellow,
        magenta,
        cyan,
        darkred,
        darkblue,
        green4,
        yellow4,
        darkmagenta,
        darkcyan
    };

    /// The lower-case Greek alphabet in its order, then the only two capitals.
    enum GreekSymbol : int {
        no_symbol,
        alpha,
        beta,
        gamma,
        delta,
        epsilon,
        zeta,
        eta,
        theta,
        iota,
        kappa,
        lambda,
        mu,
        nu,
        xi,
        omicron,
        pi,
        rho,
        sigma,
        tau,
        upsilon,
        phi,
        chi,
        psi,
        omega,
        cdelta,
        clambda
    };

    /// An item over an empty text; the finder is not asked.
    explicit TextItem(THandle<InputTextStyleFinder> finder);
    /// An item with the styles that the finder reports for `text`; throws what set_text() throws.
    TextItem(THandle<InputTextStyleFinder> finder, const std::string& text);

    /// Replaces text and styles; the line length stays. Asks the finder for subscripts,
    /// superscripts, overstrike, invisible, Greek, bold, italic, replacement texts and colours, in
    /// this order, and creates their styles. Throws what the finder and the creators throw: the
    /// styles created until then stay, the others are missing. O(n + m log n) for n characters and
    /// m styles, and the finder's own work.
    void set_text(const std::string& text);
    /// A copy, O(n).
    std::string text() const { return text_; }

    /// Wanted length of an output line in characters; a length that the present text does not
    /// exceed means, as 0 does, that lines are not broken. Throws "TextItem line length < zero
    /// error" for 4294967295, the unsigned form of -1.
    void set_line_length(unsigned int n);
    void set_no_linebreak() { line_length_ = 0; }              ///< Lines are not broken.
    unsigned int line_length() const { return line_length_; }  ///< 0: lines are not broken.

    /// The creators lay one style on [from, to). They throw, in this order,
    ///   "stlye extends beyond end of string error",
    ///   "length of StringSlice error" when to < from,
    ///   "creating an overlapping style error" when the style would cross another,
    ///   "style within replacement text style error",
    /// and those two that follow. An empty style breaks none of these rules but the first and the
    /// colour's. O(log n) each for n characters, and O(n) once for the first of a text.
    /// @{
    void create_bold(unsigned int from, unsigned int to);
    void create_italic(unsigned int from, unsigned int to);
    void create_overstrike(unsigned int from, unsigned int to);
    void create_invisible(unsigned int from, unsigned int to);
    void create_superscript(unsigned int from, unsigned int to);
    void create_subscript(unsigned int from, unsigned int to);
    void create_greek(unsigned int from, unsigned int to, GreekSymbol symbol);
    /// @}
    /// Throws "color begins at same node as existing color error" besides.
    void create_color(unsigned int from, unsigned int to, ColorName color);
    /// Throws "nested replacement texts errror" and "nascent replacement text enclosing existing
    /// style error" besides, and never "style within replacement text style error".
    void create_replacement_text(unsigned int from, unsigned int to, const std::string& text);

    /// What the generator writes for this item; throws and costs what it does, and a copy of the
    /// text.
    std::string mark_up_text(RichTextGenerator& generator) const;

    /// Whether some style begins or ends at `pos`. O(m) for m styles.
    bool is_active_node(unsigned int pos) const;
    /// The same: whether the properties must be updated there.
    bool req_prop_update(unsigned int pos) const { return is_active_node(pos); }
    /// Ends the styles that end at `pos` and then begins those that begin there, each in order of
    /// creation. An empty style begins and never ends. O(m).
    void update_props(unsigned int pos, TextAtomPropertyBuilder& builder) const;
    /// The text cut wherever a style begins or ends, with the properties of each run; an empty text
    /// is one atom that holds a NUL. O(n + m log m) for n characters and m styles.
    std::vector<TextAtom> atomize() const;

    /// Writes one line for each style, in the order of creation. O(m).
    void print(std::ostream& os) const;

private:
    void create_input_text_styles();

    void validate_to(unsigned int to) const;
    void check_no_partial_intersection(unsigned int from, unsigned int to) const;
    void check_not_within_replacement_text_style(unsigned int from, unsigned int to) const;
    void check_no_replacement_text_style_nesting(unsigned int from, unsigned int to) const;
    /// Only for a slice that crosses no style.
    void check_no_style_enclosed_by_replacement_text(unsigned int from, unsigned int to);
    void color_at_same_from(unsigned int from) const;
    /// The checks that all styles but replacement texts share.
    void check_overlay(unsigned int from, unsigned int to) const;

    void append(THandle<TextItemStyle> style);
    template <class Style, class Base>
    void append(const THandle<Style>& style, std::vector<THandle<Base>>& own_list);

    unsigned int line_length_ = 0;
    // In order of creation. The last four hold styles of styles_ a second time.
    std::vector<THandle<TextItemStyle>> styles_;
    std::vector<THandle<TextItemStyle>> invisible_styles_;
    std::vector<THandle<TextItemStyle>> color_styles_;
    std::vector<THandle<GreekStyle>> greek_styles_;
    std::vector<THandle<ReplacementTextStyle>> replacement_text_styles_;
    std::string text_;
    THandle<InputTextStyleFinder> finder_;

    // What the checks look up, so that none of them walks the styles.
    StyleNodes nodes_;
    std::map<unsigned int, StringSlice> replacement_texts_;  // not empty, by their from
    std::vector<bool> colors_begin_;                         // by position; empty without colours
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const TextItem& item);

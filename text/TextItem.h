#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "host/THandle.h"
#include "text/StringSlice.h"  // in which finders and searches speak of it

class InputTextStyleFinder;
class RichTextGenerator;
class TextAtom;
class TextAtomPropertyBuilder;

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
    /// A copy has text and styles of its own and shares the finder, which serves one text at a
    /// time: set_text() of either asks it anew and leaves the other as it is. What was moved from
    /// may only be assigned to or destroyed.
    /// @{
    TextItem(const TextItem& other);
    TextItem(TextItem&& other) noexcept;
    TextItem& operator=(const TextItem& other);
    TextItem& operator=(TextItem&& other) noexcept;
    /// @}
    ~TextItem();

    /// Replaces text and styles; the line length stays. Asks the finder for subscripts,
    /// superscripts, overstrike, invisible, Greek, bold, italic, replacement texts and colours, in
    /// this order, and creates their styles. Throws what the finder and the creators throw: the
    /// styles created until then stay, the others are missing. O(n + m log n) for n characters and
    /// m styles, and the finder's own work.
    void set_text(const std::string& text);
    /// A copy, O(n).
    std::string text() const { return characters(); }
    /// The text itself, until the next set_text().
    const std::string& characters() const;

    /// Wanted length of an output line in characters; a length that the present text does not
    /// exceed means, as 0 does, that lines are not broken. Throws "TextItem line length < zero
    /// error" for 4294967295, the unsigned form of -1.
    void set_line_length(unsigned int n);
    void set_no_linebreak();           ///< Lines are not broken.
    unsigned int line_length() const;  ///< 0: lines are not broken.

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
    struct Content;

    void create_input_text_styles();

    std::unique_ptr<Content> content_;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const TextItem& item);

#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a text as CIF files hold it, whole: Greek letters, accents and signs by
/// their codes ("\a", "\'e", "\\times", "+-"), sub- and superscripts ("~2~", "^3+^"), tags
/// ("<i>"), references ("&lt;", "&#xB5;"), UTF-8 and folded lines. A code counts as the longest
/// that is known. See International Tables for Crystallography, volume G, section 2.2.7.4.
class CifTextStyleFinder : public InputTextStyleFinder {
public:
    /// What may not be what its author meant. It stays as it stands.
    struct Doubt {
        /// What is wrong there.
        enum Kind {
            unknown_code,       ///< A backslash that begins no code.
            unknown_reference,  ///< A reference to no character.
            lone_mark,          ///< What opens or closes a style, without its partner.
            not_utf8,           ///< Bytes that are no character.
        };

        StringSlice place;  ///< Of neighbours of one kind, all.
        Kind kind;          ///< Likewise.
    };

    ~CifTextStyleFinder() override;

    void bold(std::vector<StringSlice>& out) const override;
    void italic(std::vector<StringSlice>& out) const override;
    void subscripts(std::vector<StringSlice>& out) const override;
    void superscripts(std::vector<StringSlice>& out) const override;
    void invisible(std::vector<StringSlice>& out) const override;
    void replacement_text(std::vector<ReplacementTextSlice>& out) const override;
    void greek(std::vector<GreekSlice>& out) const override;
    void calc_tag_positions() override;

    /// The doubts about the last text, in the order of their places.
    const std::vector<Doubt>& doubts() const { return found_.doubts; }

private:
    friend class CifTextParser;

    struct Found {
        std::vector<StringSlice> bold, italic, subscripts, superscripts, invisible;
        std::vector<GreekSlice> greek;
        std::vector<ReplacementTextSlice> replacements;
        std::vector<Doubt> doubts;
    };

    Found found_;
};

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// How the texts of several parts make one text, both ways. In a form "$0" is part 0, "[...]" a
/// piece that may lack and "|" stands between choices, of forms and within pieces. What stands
/// between two pieces is written only where both are there. Parts side by side have the same text.
///
/// "[$0] to [$1]°" makes "2 to 27°" and "27°"; "$0$1|$0-$1" makes "5" of two that are "5".
class FieldForm {
public:
    /// The texts of all parts; those that lack are empty.
    using Parts = std::vector<std::string>;
    /// Whether a text may be that of a part.
    using Fits = std::function<bool(std::size_t part, const std::string& text)>;

    /// `form` is well formed and has no more than ten parts.
    explicit FieldForm(std::string_view form);

    /// The text of the first way whose parts all have texts, of pieces as many as there are; empty
    /// where there is none.
    std::string text_of(const Parts& parts) const;
    /// The parts of a text, empty where they lack; of several ways one whose parts fit, then that
    /// with most parts as in `present`, then that which says most beside them. One that says more,
    /// and whose parts do not fit, goes before: it has a slip. False where the text is not of the
    /// form.
    bool match(std::string_view text, const Parts& present, const Fits& fits, Parts& parts) const;
    /// The longest of its ways, with dots for the parts: "a ... b ... c ...".
    std::string outline() const;

private:
    std::vector<std::string> ways_;  // without brackets
};

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "comparison/folding.h"
#include "text/StringSlice.h"

/// A text folded, and the way back from its positions. Its characters are letters with their
/// accents and the like; a run of blanks is one where blanks are folded, and each byte that is not
/// UTF-8 is one. The text is not kept.
class FoldedText {
public:
    /// O(n) for n bytes. Throws std::length_error where either text has more than 4294967294.
    FoldedText(std::string_view text, const Folding& folding);

    /// What folded() gives.
    const std::string& text() const& { return folded_; }
    /// Likewise, without a copy.
    std::string text() && { return std::move(folded_); }

    /// The smallest range of whole characters of the text that are folded to that range and what
    /// lies around it; an empty one stays empty. O(log n), as is the other.
    StringSlice in_text(const StringSlice& folded) const;
    /// The characters that are folded to nothing but what lies in that range; none where there are
    /// none, nor where an empty range lies inside of what a character is folded to.
    std::optional<StringSlice> whole_characters(const StringSlice& folded) const;
    /// Whether a position of the folded text lies between two characters of the text, and not
    /// inside of what one is folded to.
    bool is_boundary(unsigned int folded) const;

private:
    /// Characters that take a byte each in both texts, or one other.
    struct Run {
        unsigned int in_text, folded;  // where it begins
        bool is_plain;
    };
    using Runs = std::vector<Run>;

    Runs::const_iterator run_of(unsigned int folded) const;

    std::string folded_;
    Runs runs_;  // the last is the end of both texts
};

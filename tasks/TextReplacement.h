#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "markup/DisplayedText.h"
#include "tasks/Source.h"

/// Where a part of a text stands that is to be replaced: wherever a reader sees it, or else, where
/// nobody does, wherever it stands among the codes.
class TextReplacement {
public:
    /// `old` is not empty. Throws what the text fails with. O(n + m log m) for n characters and m
    /// styles.
    TextReplacement(const Source& kind, std::string text, std::string old);

    /// Whether it is there at all, and whether a reader sees it.
    /// @{
    bool is_there() const { return !places_.empty(); }
    bool is_seen() const { return is_seen_; }
    /// @}
    /// The text with `by`, of the same kind, in its place. Throws std::invalid_argument where a
    /// reader would see something else changed, too. O(n + k m) for k places.
    std::string with(const std::string& by) const;

private:
    /// Whether the codes that show nothing around a place are replaced with it.
    struct Hidden {
        bool before, behind;
    };

    std::string shown(const std::string& text) const;
    std::string with(const std::string& by, const Hidden& hidden) const;

    const Source& kind_;
    std::string text_, old_;
    DisplayedText displayed_;
    bool is_seen_ = false;
    std::vector<std::size_t> places_;  // in the displayed text where it is seen, else in the text
};

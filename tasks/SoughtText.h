#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A text that is looked for in others, each of which is gone through once, however often the
/// beginning of what is looked for repeats itself there.
class SoughtText {
public:
    /// Looks for a text, which may be empty where stands_in() alone is asked. O(m) for m bytes.
    explicit SoughtText(std::string text);

    const std::string& text() const { return text_; }
    /// Whether the text stands somewhere in the other. O(n) for n bytes of it, whatever m.
    bool stands_in(std::string_view other) const;

    /// The places where a text stands in another, from the first to the last, overlapping ones too.
    /// Refers to both texts. O(n) in all.
    class Places {
    public:
        /// Nothing is looked for yet.
        Places(const SoughtText& sought, std::string_view other) : sought_(sought), other_(other) {}

        /// Where the next one begins; std::string_view::npos behind the last.
        std::size_t next();
        /// Passes over those that overlap the last.
        void pass_over() { matched_ = 0; }

    private:
        const SoughtText& sought_;
        std::string_view other_;
        std::size_t read_ = 0;     // how much of the other text has been looked at
        std::size_t matched_ = 0;  // as much of the sought text stands at the end of that
    };

private:
    std::size_t matched_with(std::size_t matched, char c) const;

    std::string text_;
    // For the first i + 1 bytes of the text, how many of the last of them, but not all, are its
    // first ones too: what is left of a match that does not go on.
    std::vector<std::size_t> kept_;
};

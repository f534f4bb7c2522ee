#pragma once

#include <string>

#include "text/StringSlice.h"

/// A run of characters and the text to show in its place.
class ReplacementTextSlice {
public:
    /// Covers positions [from, to); throws what StringSlice(from, to) throws.
    ReplacementTextSlice(unsigned int from, unsigned int to, const std::string& text)
        : slice_(from, to), text_(text) {}
    ReplacementTextSlice(const ReplacementTextSlice&) = default;
    ReplacementTextSlice& operator=(const ReplacementTextSlice&) = default;
    virtual ~ReplacementTextSlice();

    unsigned int from() const { return slice_.from(); }
    unsigned int to() const { return slice_.to(); }
    const StringSlice& slice() const { return slice_; }
    std::string text() const { return text_; }

private:
    StringSlice slice_;
    std::string text_;
};

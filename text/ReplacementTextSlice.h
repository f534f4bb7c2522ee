#pragma once

#include <string>

#include "text/StringSlice.h"

/// A run of characters and the text to show in its place.
class ReplacementTextSlice {
public:
    /// Covers positions [from, to); throws what StringSlice(from, to) throws.
    ReplacementTextSlice(unsigned int from, unsigned int to, const std::string& text)
        : slice_(from, to), text_(text) {}
    /// Copies range and text.
    /// @{
    ReplacementTextSlice(const ReplacementTextSlice&) = default;
    ReplacementTextSlice& operator=(const ReplacementTextSlice&) = default;
    /// @}
    virtual ~ReplacementTextSlice();

    /// The run: its first position, one past its last, and both.
    /// @{
    unsigned int from() const { return slice_.from(); }
    unsigned int to() const { return slice_.to(); }
    const StringSlice& slice() const { return slice_; }
    /// @}
    std::string text() const { return text_; }  ///< May be empty: the run is then not shown.

private:
    StringSlice slice_;
    std::string text_;
};

#pragma once

#include <string>
#include <vector>

#include "text/ColorSlice.h"
#include "text/GreekSlice.h"
#include "text/ReplacementTextSlice.h"
#include "text/StringSlice.h"

/// Reads a plain text and reports which styles lie on which runs of it. This base reports none; a
/// subclass overrides the queries that its input mark-up can answer.
///
/// All positions count characters (bytes) of text(). The queries append to `out`, never clear it,
/// and give the same answer until the next set_text(). What a finder reports must obey the rules of
/// TextItem, which asks for replacement texts and colours last. Unless a subclass says more,
/// setting a text and each query are O(n + k) for n characters and k slices found. A finder serves
/// one text at a time and one thread at a time.
class InputTextStyleFinder {
public:
    InputTextStyleFinder() = default;
    InputTextStyleFinder(const InputTextStyleFinder&) = delete;
    InputTextStyleFinder& operator=(const InputTextStyleFinder&) = delete;
    virtual ~InputTextStyleFinder();

    /// Appends the runs of that style.
    /// @{
    virtual void bold(std::vector<StringSlice>& out) const;
    virtual void italic(std::vector<StringSlice>& out) const;
    virtual void subscripts(std::vector<StringSlice>& out) const;
    virtual void superscripts(std::vector<StringSlice>& out) const;
    virtual void overstrike(std::vector<StringSlice>& out) const;
    virtual void invisible(std::vector<StringSlice>& out) const;
    virtual void replacement_text(std::vector<ReplacementTextSlice>& out) const;
    virtual void greek(std::vector<GreekSlice>& out) const;
    virtual void color(std::vector<ColorSlice>& out) const;
    /// @}
    /// Called once for each new text: the place to parse it.
    virtual void calc_tag_positions();

    /// Stores a copy of `text` and calls calc_tag_positions(); throws what that throws, with the
    /// new text stored, and std::length_error for more than 4294967294 characters, with the text
    /// as it was.
    void set_text(const std::string& text);
    /// The finder's copy, until the next set_text(); empty before the first.
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

#pragma once

#include <string>
#include <vector>

#include "host/THandle.h"

class GreekStyle;
class ReplacementTextStyle;
class TextItemStyle;

/// What a generator reads of one rich text: its characters and its styles.
/// Keeps references to the caller's lists: must not outlive the item that made it.
class RichTextData {
public:
    /// A list of a text's styles; none of the handles is null.
    /// @{
    using Styles = std::vector<THandle<TextItemStyle>>;
    using GreekStyles = std::vector<THandle<GreekStyle>>;
    using ReplacementTextStyles = std::vector<THandle<ReplacementTextStyle>>;
    /// @}

    /// `styles` are those whose tags are written; the other lists name those among them whose
    /// characters are left out or shown as something else. A line length of 0 breaks no lines.
    /// Copies the text: O(n) for n characters, as is text().
    RichTextData(const std::string& text, unsigned int line_length, const Styles& styles,
                 const Styles& invisible, const GreekStyles& greek,
                 const ReplacementTextStyles& replacement_text);
    /// Lists that end with the call are refused.
    /// @{
    RichTextData(const std::string&, unsigned int, const Styles&&, const Styles&,
                 const GreekStyles&, const ReplacementTextStyles&) = delete;
    RichTextData(const std::string&, unsigned int, const Styles&, const Styles&&,
                 const GreekStyles&, const ReplacementTextStyles&) = delete;
    RichTextData(const std::string&, unsigned int, const Styles&, const Styles&,
                 const GreekStyles&&, const ReplacementTextStyles&) = delete;
    RichTextData(const std::string&, unsigned int, const Styles&, const Styles&, const GreekStyles&,
                 const ReplacementTextStyles&&) = delete;
    /// @}

    /// A copy of the text.
    std::string text() const { return text_; }
    /// The text itself, for those who do not outlive this.
    const std::string& characters() const { return text_; }
    /// In characters of the output, tags not counted; 0 breaks no lines.
    unsigned int line_length() const { return line_length_; }
    /// The caller's list of that name.
    /// @{
    const Styles& styles() const { return styles_; }
    const Styles& invisible() const { return invisible_; }
    const GreekStyles& greek() const { return greek_; }
    const ReplacementTextStyles& replacement_text() const { return replacement_text_; }
    /// @}

private:
    std::string text_;
    unsigned int line_length_;
    const Styles& styles_;
    const Styles& invisible_;
    const GreekStyles& greek_;
    const ReplacementTextStyles& replacement_text_;
};

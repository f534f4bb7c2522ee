#pragma once

#include <string_view>

#include "markup/RichTextData.h"

/// Styles cut where they cross, so that their tags nest: where one of two that cross ends, the one
/// that began inside it is closed and opened again. What lies beyond the end of the text is left
/// out, and ends inside a UTF-8 character move to its beginning.
class NestedStyles {
public:
    /// O((m + p) log (m + p)) for m styles cut into p pieces.
    NestedStyles(const RichTextData::Styles& styles, std::string_view text);

    /// Whether the styles need not be cut: none crosses another, ends beyond the text or has an end
    /// inside a character. O(m log m).
    static bool are_nested(const RichTextData::Styles& styles, std::string_view text);

    /// The pieces, each with the tags of its whole style. None is empty.
    const RichTextData::Styles& styles() const { return pieces_; }

private:
    RichTextData::Styles pieces_;
};

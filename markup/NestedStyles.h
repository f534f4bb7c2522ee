#pragma once

#include "markup/RichTextData.h"

/// Styles cut where they cross, so that their tags nest: where one of two that cross ends, the one
/// that began inside it is closed and opened again. What lies beyond the end of the text is left
/// out.
class NestedStyles {
public:
    /// O((m + p) log (m + p)) for m styles cut into p pieces.
    NestedStyles(const RichTextData::Styles& styles, unsigned int text_length);

    /// The pieces, each with the tags of its whole style. None is empty.
    const RichTextData::Styles& styles() const { return pieces_; }

private:
    RichTextData::Styles pieces_;
};

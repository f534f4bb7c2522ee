#pragma once

#include <vector>

#include "markup/NestingRichTextGenerator.h"

/// The base of the targets whose tags depend on what they enclose or on what stands beside them.
/// The first pass writes the text and notes the tags, the second puts them in.
class TwoPassRichTextGenerator : public NestingRichTextGenerator {
public:
    /// A tag of the factory that has been noted. The tags nest.
    struct Tag {
        std::size_t position;  ///< In bytes of the text of the first pass, where the tag belongs.
        std::string text;      ///< The factory's; the text of the first pass does not hold it.
        TextItemStyle::Kind kind;  ///< Of its style.
        bool opens;                ///< Whether it opens its style, and does not close it.
        std::size_t partner;       ///< The index of the tag that closes or opens the same style.
    };

    using NestingRichTextGenerator::NestingRichTextGenerator;
    ~TwoPassRichTextGenerator() override;

    /// Calls compose() on what the base writes. O(t) for t tags and characters, beside what the
    /// base costs.
    std::string mark_up_text(const RichTextData& data) const override;

protected:
    /// Puts the noted tags into the text, in their order.
    virtual std::string compose(std::string_view text, const std::vector<Tag>& tags) const = 0;

    /// Notes the tag.
    void write_tag(std::string& result, const std::string& tag, TextItemStyle::Kind kind,
                   bool opens) const override;

private:
    // Scratch of one call.
    mutable std::vector<Tag> tags_;
    mutable std::vector<std::size_t> open_;  // the tags that stand open, the innermost last
};

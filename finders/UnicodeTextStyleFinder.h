#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a text as it is pasted from a page or a paper, in UTF-8: Greek letters,
/// raised and lowered characters, "_{...}" and "^{...}" where Unicode lacks such characters, and
/// combining overlines for bars. Reads what UnicodeRichTextGenerator writes.
class UnicodeTextStyleFinder : public InputTextStyleFinder {
public:
    ~UnicodeTextStyleFinder() override;

    void subscripts(std::vector<StringSlice>& out) const override;
    void superscripts(std::vector<StringSlice>& out) const override;
    void overstrike(std::vector<StringSlice>& out) const override;
    void invisible(std::vector<StringSlice>& out) const override;
    void replacement_text(std::vector<ReplacementTextSlice>& out) const override;
    void greek(std::vector<GreekSlice>& out) const override;
    void calc_tag_positions() override;

private:
    class Parser;

    struct Found {
        std::vector<StringSlice> subscripts, superscripts, overstrike, invisible;
        std::vector<GreekSlice> greek;
        std::vector<ReplacementTextSlice> replacements;
    };

    Found found_;
};

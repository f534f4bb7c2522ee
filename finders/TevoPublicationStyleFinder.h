#pragma once

#include <string>

#include "finders/InputTextStyleFinder.h"

/// Shows a tagged literature reference as journal (volume, year), page, the journal in italics and
/// the volume bold. The tags are those of CombinedPublicationTagSupplier.
class TevoPublicationStyleFinder : public InputTextStyleFinder {
public:
    TevoPublicationStyleFinder();
    ~TevoPublicationStyleFinder() override;

    /// The volume, unless it is empty. This and italic() throw std::range_error "length of
    /// StringSlice error" for an end tag before its opening tag.
    void bold(std::vector<StringSlice>& out) const override;
    /// The journal.
    void italic(std::vector<StringSlice>& out) const override;
    /// The opening tags and the end tag of the page.
    void invisible(std::vector<StringSlice>& out) const override;
    /// The end tags of journal, volume and year, shown as the punctuation between the parts.
    void replacement_text(std::vector<ReplacementTextSlice>& out) const override;
    /// None: references are not coloured.
    void color(std::vector<ColorSlice>& out) const override;
    /// Throws std::runtime_error "TevoPublicationStyleFinder bad journal string error" when a tag
    /// is missing, as all are in an empty text.
    void calc_tag_positions() override;

private:
    struct Tag {
        std::string text;
        unsigned int position = 0;  // in the text, of its first occurrence

        unsigned int end() const;
    };
    struct Part {
        Tag begin, end;

        StringSlice enclosed() const { return {begin.end(), end.position}; }
    };

    Part journal_, volume_, year_, page_;
};

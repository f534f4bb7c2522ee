#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "entries/Problem.h"
#include "finders/CifTextStyleFinder.h"
#include "host/THandle.h"
#include "text/TextItem.h"

/// A text of a CIF file, of which some characters stand in codes.
class CodedText {
public:
    /// Whether there may be codes in a text; most have none.
    static bool may_hold_codes(std::string_view text);

    explicit CodedText(const std::string& text);

    const std::string& text() const { return finder_->text(); }

    /// In UTF-8, as far as Unicode has raised and lowered characters with them.
    std::string unicode() const;
    /// In the database's own mark-up; what is beyond ASCII is in UTF-8.
    std::string tevo() const;
    /// In ASCII: with codes for what is beyond it, or references by number, "&#x4E2D;".
    std::string with_codes() const;
    /// With the characters of UTF-8 for their codes, of which those of styles and ASCII stay.
    std::string in_utf8() const;

    /// Appends a warning for each doubt about a code, with its column in the text, up to ten and
    /// the number of the others.
    void append_doubts(std::vector<Problem>& problems) const;

private:
    THandle<CifTextStyleFinder> finder_;
    TextItem item_;
};

/// A text in UTF-8 as a CIF file holds it: as it stands where it is read so and may stand there,
/// else with its codes.
std::string with_codes(const std::string& text, bool is_version_2);

/// What CodedText::append_doubts() says of the finder's text.
void append_doubts_of(const CifTextStyleFinder& finder, std::vector<Problem>& problems);

#pragma once

#include <string>
#include <vector>

#include "entries/Problem.h"
#include "markup/RichTextTarget.h"
#include "tasks/Losses.h"
#include "tasks/Source.h"
#include "text/TextItem.h"

/// Writes texts of one kind in the mark-up of a target, one after the other in one thread.
class TextConverter {
public:
    /// Lines are broken after `line_length` characters; 0 breaks none. `ascii`, where it is not
    /// null, is that of the target.
    TextConverter(const Source& from, const RichTextTarget& to, unsigned int line_length,
                  const AsciiForm* ascii = nullptr);

    /// The text's mark-up. Appends what there is to say about it to `problems`. Throws what the
    /// text fails with.
    std::string convert(const std::string& text, std::vector<Problem>& problems);

private:
    const Source& from_;
    unsigned int line_length_;
    THandle<InputTextStyleFinder> finder_;
    THandle<RichTextGenerator> generator_;
    TextItem item_;
    Losses losses_;
    const AsciiForm* ascii_;
};

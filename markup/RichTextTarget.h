#pragma once

#include <span>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"

/// What programs put around the rows of labels and texts that they write in a target's mark-up.
struct RichTextLayout {
    const char* before_title;  ///< In front of the title, which is text.
    const char* behind_title;  ///< Behind it.
    const char* before_row;    ///< In front of each row.
    const char* indent;        ///< Before the label of a row that no sign stands before.
    const char* behind_label;  ///< Between the label, which is text, and the mark-up.
    const char* foot;          ///< Behind the last row.
};

/// One kind of mark-up that the library writes, as programs offer it to their users.
struct RichTextTarget {
    const char* name;    ///< One word, in lower case.
    const char* ending;  ///< Of files, without a dot.
    const char* help;    ///< One line, without a full stop.
    bool escapes;        ///< Whether texts without styles must go through the generator too.
    /// Makes a new generator, for one thread.
    THandle<RichTextGenerator> (*make_generator)();
    RichTextLayout layout;  ///< How entries are laid out in it.
    /// What programs choose a target for where nobody has chosen.
    enum class Use {
        none,            ///< Nothing.
        page,            ///< Pages, and files of unknown kinds.
        terminal,        ///< Terminals.
        plain_terminal,  ///< Terminals without colours, and output that is no terminal.
    };
    Use use;  ///< What they choose this one for.
};

/// All targets: first the four of the database and its old displays, then those for others'
/// programs. The list lives as long as the program.
std::span<const RichTextTarget> rich_text_targets();

/// The target that programs choose for that use; throws std::invalid_argument for Use::none.
const RichTextTarget& rich_text_target_for(RichTextTarget::Use use);

#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "entries/Problem.h"
#include "markup/RichTextTarget.h"
#include "text/TextItem.h"

/// Notes what a target cannot say of the texts that are written in it; each kind of loss once.
class Losses {
public:
    explicit Losses(const RichTextTarget& target);

    /// Appends a note for each kind of style of the item that the target has no tags for. O(m) for
    /// m styles.
    void note_styles(const TextItem& item, std::vector<Problem>& problems);
    /// What the generator writes of the item; null: nothing. Throws what it throws.
    std::string mark_up(const TextItem& item, RichTextGenerator* generator);
    /// What note_styles() does, of the item that mark_up() was called for last.
    void note_seen_styles(std::vector<Problem>& problems);
    /// Appends a note where mark-up that is ASCII by its nature holds more; `is_of_run` says that
    /// it shall be told once.
    void note_characters(std::string_view mark_up, std::vector<Problem>& problems,
                         bool is_of_run = false) const;

private:
    static constexpr std::size_t kinds = 6;

    const RichTextTarget& target_;
    bool is_ascii_;
    std::array<bool, kinds> is_lost_{};  // and not noted yet
    unsigned long seen_ = 0;             // of the last item, a bit for each kind of style
};

/// How a target says in ASCII alone what ASCII lacks.
struct AsciiForm {
    const char* target;
    std::string (*in_ascii)(std::string_view mark_up);
    bool is_usual;  ///< Whether its mark-up is ASCII by its nature.
};

/// That of a target, or null where it has none.
const AsciiForm* ascii_form_of(const RichTextTarget& target);

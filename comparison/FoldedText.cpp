#include "comparison/FoldedText.h"

#include <algorithm>

#include "comparison/CharacterFolder.h"
#include "text/Position.h"

FoldedText::FoldedText(std::string_view text, const Folding& folding) {
    check_length(text);
    const CharacterFolder folder(folding);
    folded_.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t folded = folded_.size();
        const std::size_t plain = folder.append_plain(text.substr(pos), folded_);
        if (plain > 0) {
            runs_.push_back({to_position(pos), to_position(folded), true});
            pos += plain;
        } else {
            runs_.push_back({to_position(pos), to_position(folded), false});
            pos += folder.append_character(text.substr(pos), folded_);
            check_length(folded_);
        }
    }
    runs_.push_back({to_position(text.size()), length_of(folded_), false});
}

/// The last run that begins at or before a position.
FoldedText::Runs::const_iterator FoldedText::run_of(unsigned int folded) const {
    const auto is_before = [](unsigned int position, const Run& run) {
        return position < run.folded;
    };
    return std::prev(std::upper_bound(runs_.begin(), runs_.end(), folded, is_before));
}

StringSlice FoldedText::in_text(const StringSlice& folded) const {
    const auto place_in = [](const Run& run, unsigned int position) {
        return run.in_text + (run.is_plain ? position - run.folded : 0);
    };
    const unsigned int from = place_in(*run_of(folded.from()), folded.from());
    if (folded.empty()) return {from, from};
    const auto last = run_of(folded.to() - 1);
    return {from, last->is_plain ? place_in(*last, folded.to()) : std::next(last)->in_text};
}

std::optional<StringSlice> FoldedText::whole_characters(const StringSlice& folded) const {
    const auto first = run_of(folded.from()), last = run_of(folded.to());
    const unsigned int from = is_boundary(folded.from()) ? folded.from() : (first + 1)->folded;
    const unsigned int to = is_boundary(folded.to()) ? folded.to() : last->folded;
    if (from > to || (from == to && !folded.empty())) return std::nullopt;
    return in_text({from, to});
}

bool FoldedText::is_boundary(unsigned int folded) const {
    const auto run = run_of(folded);
    return run->is_plain || run->folded == folded;
}

std::string folded(std::string_view text, const Folding& folding) {
    return FoldedText(text, folding).text();
}

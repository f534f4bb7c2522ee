#include "entries/EditSession.h"

#include <utility>

EditSession::EditSession(std::string bytes) : original_(std::move(bytes)) { replace(original_); }

/// Keeps what there was where the bytes are not a CIF file.
void EditSession::replace(std::string bytes) {
    auto replaced = std::make_unique<std::string>(std::move(bytes));
    auto entries = std::make_unique<EntryReader>(*replaced);
    entries_ = std::move(entries);
    bytes_ = std::move(replaced);
}

void EditSession::apply(Splices change) {
    if (change.empty()) return;
    // Nothing may fail behind the replacement.
    if (done_ == changes_.capacity()) changes_.reserve(2 * done_ + 1);
    replace(spliced(*bytes_, change));
    changes_.resize(done_++);
    changes_.push_back(std::move(change));
}

bool EditSession::undo() {
    if (done_ == 0) return false;
    replace(spliced(*bytes_, inverse(changes_[done_ - 1])));
    --done_;
    return true;
}

bool EditSession::redo() {
    if (done_ == changes_.size()) return false;
    replace(spliced(*bytes_, changes_[done_]));
    ++done_;
    return true;
}

std::vector<Splices> EditSession::changes() const {
    return {changes_.begin(), changes_.begin() + static_cast<std::ptrdiff_t>(done_)};
}

#include "cli/EntryStream.h"

#include "cli/options.h"
#include "cli/report.h"
#include "entries/cif_text.h"

const CifEntry* EntryStream::next() {
    while (file_ || open_next()) {
        if (file_->next(entry_)) {
            if (!is_wanted()) continue;
            good_ = report(entry_->problems) && good_;
            ++count_;
            return &*entry_;
        }
        if (file_->problem()) {
            report(*file_->problem());
            good_ = false;
        } else if (!block_.empty() && count_ == 0) {
            const std::vector<std::string_view> known(others_.begin(), others_.end());
            report(file_->path() + ": " +
                   no_such("block", block_, nearest_word(block_, known), ""));
            good_ = false;
        }
        entry_.reset();
        file_.reset();
    }
    return nullptr;
}

/// Whether the entry that was read is of the block that is wanted.
bool EntryStream::is_wanted() {
    if (block_.empty()) return true;
    const std::string_view name = entry_->block.name();
    if (count_ == 0 && in_lower_case(name) == in_lower_case(block_)) return true;
    others_.emplace_back(name);
    return false;
}

/// Opens the file of the next place that has one.
bool EntryStream::open_next() {
    while (next_place_ < places_.size()) {
        const Place& place = places_[next_place_++];
        if (place.problem.empty()) {
            file_ = std::make_unique<EntryFile>(place.path);
            return true;
        }
        report(place.problem);
        good_ = false;
    }
    return false;
}

double EntryStream::places_read() const {
    return static_cast<double>(next_place_) - (file_ ? 1 - file_->part_read() : 0);
}

#include "cli/EntryStream.h"

#include "cli/report.h"

const CifEntry* EntryStream::next() {
    while (file_ || open_next()) {
        if (file_->next(entry_)) {
            good_ = report(entry_->problems) && good_;
            ++count_;
            return &*entry_;
        }
        if (file_->problem()) {
            report(*file_->problem());
            good_ = false;
        }
        entry_.reset();
        file_.reset();
    }
    return nullptr;
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

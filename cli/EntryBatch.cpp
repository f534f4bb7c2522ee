#include "cli/EntryBatch.h"

#include <new>
#include <optional>
#include <utility>

#include "cli/report.h"

namespace {

constexpr std::size_t entries_of_a_thread = 16;  // enough to be worth one

}  // namespace

EntryBatch::EntryBatch(std::vector<Place> places, unsigned int jobs, ProcessEntries process)
    : places_(std::move(places), jobs),
      jobs_(jobs),
      process_(std::move(process)),
      openings_(jobs),
      in_work_(jobs) {}

EntryBatch::~EntryBatch() = default;

bool EntryBatch::next(ProcessedEntries& done) {
    while (true) {
        if (file_ && next_of_file(done)) break;
        begin_to_open();
        if (openings_.empty() && opened_.empty()) return false;
        if (open_next(done) && done.count > 0) break;
    }
    good_ = report(done.problems) && good_;
    return true;
}

std::vector<CifEntry> EntryBatch::read_entries(EntryFile& file) const {
    const std::size_t most = jobs_ > 1 ? entries_of_a_thread : 1;
    std::vector<CifEntry> entries;
    std::optional<CifEntry> entry;
    while (entries.size() < most && file.next(entry)) entries.push_back(std::move(*entry));
    return entries;
}

EntryBatch::Opened EntryBatch::open(Place place) const {
    if (!place.problem.empty()) return {std::move(place.problem)};
    try {
        Opened opened{"", std::make_unique<EntryFile>(place.path)};
        opened.first = process_(place.path, read_entries(*opened.file));
        return opened;
    } catch (const std::bad_alloc&) {
        return {place.path + ": out of memory"};
    }
}

void EntryBatch::begin_to_open() {
    while (!openings_.is_full() && !places_.at_end()) {
        auto places = std::make_shared<std::vector<Place>>(places_.take());
        being_opened_ += places->size();
        openings_.begin([this, places] {
            std::vector<Opened> all;
            for (Place& place : *places) all.push_back(open(std::move(place)));
            return all;
        });
    }
}

/// Takes the next file, and what became of its first entries; false where there is none.
bool EntryBatch::open_next(ProcessedEntries& done) {
    if (opened_.empty()) {
        for (Opened& opened : openings_.take_first()) opened_.push_back(std::move(opened));
        being_opened_ -= opened_.size();
    }
    Opened opened = std::move(opened_.front());
    opened_.pop_front();
    if (!opened.problem.empty()) {
        refuse(opened.problem);
        return false;
    }
    file_ = std::move(opened.file);
    done = std::move(opened.first);
    return true;
}

/// The next result of the file; at its end there is no file any more.
bool EntryBatch::next_of_file(ProcessedEntries& done) {
    try {
        begin_to_process();
        if (!in_work_.empty()) {
            done = in_work_.take_first();
            return true;
        }
        if (file_->problem()) {
            report(*file_->problem());
            good_ = false;
        }
    } catch (const std::bad_alloc&) {
        in_work_.clear();
        refuse(file_->path() + ": out of memory");
    }
    file_.reset();
    return false;
}

/// The entries of the file are read here, in turn: for what it answers, a file keeps notes.
void EntryBatch::begin_to_process() {
    while (!in_work_.is_full()) {
        auto entries = std::make_shared<const std::vector<CifEntry>>(read_entries(*file_));
        if (entries->empty()) return;
        in_work_.begin([this, entries] { return process_(file_->path(), *entries); });
    }
}

double EntryBatch::places_read() const {
    const std::size_t begun = places_.taken() - being_opened_ - opened_.size();
    return static_cast<double>(begun) - (file_ ? 1 - file_->part_read() : 0);
}

void EntryBatch::refuse(const std::string& message) {
    report(message);
    good_ = false;
}

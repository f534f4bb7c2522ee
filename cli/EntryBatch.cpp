#include "cli/EntryBatch.h"

#include <new>
#include <optional>
#include <utility>

#include "cli/launch_policy.h"
#include "cli/report.h"

namespace {

constexpr std::size_t entries_of_a_thread = 16;  // enough to be worth one

}  // namespace

EntryBatch::EntryBatch(std::vector<Place> places, unsigned int jobs, ProcessEntries process)
    : places_(std::move(places)), jobs_(jobs), process_(std::move(process)) {}

EntryBatch::~EntryBatch() = default;

bool EntryBatch::next(ProcessedEntries& done) {
    while (true) {
        if (file_ && next_of_file(done)) break;
        begin_to_open();
        if (openings_.empty()) return false;
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

/// Keeps as many files being opened as there are jobs.
void EntryBatch::begin_to_open() {
    while (openings_.size() < jobs_ && next_place_ < places_.size()) {
        Place place = std::move(places_[next_place_++]);
        const auto open = [this, path = place.path] {
            Opened opened{std::make_unique<EntryFile>(path), {}};
            const std::vector<CifEntry> entries = read_entries(*opened.file);
            opened.first = process_(path, entries);
            return opened;
        };
        const bool is_file = place.problem.empty();
        openings_.push_back(
            {std::move(place.path), std::move(place.problem),
             is_file ? std::async(launch_policy(jobs_), open) : std::future<Opened>()});
    }
}

/// Takes the next file, and what became of its first entries; false where there is none.
bool EntryBatch::open_next(ProcessedEntries& done) {
    Opening opening = std::move(openings_.front());
    openings_.pop_front();
    if (!opening.problem.empty()) {
        refuse(opening.problem);
        return false;
    }
    try {
        Opened opened = opening.opened.get();
        file_ = std::move(opened.file);
        done = std::move(opened.first);
        return true;
    } catch (const std::bad_alloc&) {
        refuse(opening.path + ": out of memory");
        return false;
    }
}

/// The next result of the file; at its end there is no file any more.
bool EntryBatch::next_of_file(ProcessedEntries& done) {
    try {
        begin_to_process();
        if (!in_work_.empty()) {
            std::future<ProcessedEntries> first = std::move(in_work_.front());
            in_work_.pop_front();
            done = first.get();
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

/// Keeps as many entries of the file in work as there are jobs. They are read here, in turn: for
/// what it answers, a file keeps notes.
void EntryBatch::begin_to_process() {
    while (in_work_.size() < jobs_) {
        auto entries = std::make_shared<const std::vector<CifEntry>>(read_entries(*file_));
        if (entries->empty()) return;
        in_work_.push_back(std::async(
            launch_policy(jobs_), [this, entries] { return process_(file_->path(), *entries); }));
    }
}

double EntryBatch::places_read() const {
    const std::size_t begun = next_place_ - openings_.size();
    return static_cast<double>(begun) - (file_ ? 1 - file_->part_read() : 0);
}

void EntryBatch::refuse(const std::string& message) {
    report(message);
    good_ = false;
}

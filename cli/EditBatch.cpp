#include "cli/EditBatch.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <new>
#include <system_error>
#include <utility>

#include "cli/launch_policy.h"
#include "cli/read_cif.h"

namespace {

constexpr std::uintmax_t bytes_of_a_thread = 1 << 18;  // enough to be worth one

bool is_error(const Problem& problem) { return problem.level == Problem::Level::error; }

}  // namespace

EditBatch::EditBatch(std::vector<Place> places, unsigned int jobs, EditEntries edit)
    : places_(std::move(places)), jobs_(jobs), edit_(std::move(edit)) {}

EditBatch::~EditBatch() = default;

std::optional<EditBatch::Edited> EditBatch::next() {
    begin_to_edit();
    if (done_.empty()) {
        if (in_work_.empty()) return std::nullopt;
        std::future<std::vector<Edited>> first = std::move(in_work_.front());
        in_work_.pop_front();
        begin_to_edit();
        std::vector<Edited> all = first.get();
        std::move(all.begin(), all.end(), std::back_inserter(done_));
    }
    Edited first = std::move(done_.front());
    done_.pop_front();
    return first;
}

EditBatch::Edited EditBatch::edited(std::size_t place) const {
    Edited done;
    const auto refuse = [&](const std::string& message) {
        done.problems.emplace_back().what = message;
    };
    const std::string& path = places_[place].path;
    try {
        edit(place, done);
    } catch (const InputError& error) {
        refuse(error.what());
    } catch (const CifError& error) {
        refuse(not_cif(path, error));
    } catch (const std::bad_alloc&) {
        refuse(path + ": out of memory");
    }
    return done;
}

void EditBatch::edit(std::size_t place, Edited& done) const {
    if (!places_[place].problem.empty()) throw InputError(places_[place].problem);
    done.file.emplace(places_[place].path);
    EditSession session(done.file->bytes());
    FileChange change = edit_(place, session.entries());
    done.problems = std::move(change.problems);
    for (Problem& problem : done.problems) problem.file = done.file->path();
    if (std::any_of(done.problems.begin(), done.problems.end(), is_error)) return;
    session.apply(change.splices);
    if (!session.is_changed()) return;
    done.bytes = session.bytes();
    done.splices = std::move(change.splices);
}

/// The next file, or several small ones, which one thread edits.
EditBatch::Range EditBatch::next_range() {
    Range range{next_place_, next_place_};
    std::uintmax_t size = 0;
    do {
        std::error_code unknown;
        const auto more = std::filesystem::file_size(places_[range.second].path, unknown);
        size += unknown ? 0 : more;
        ++range.second;
    } while (jobs_ > 1 && size < bytes_of_a_thread && range.second < places_.size());
    next_place_ = range.second;
    return range;
}

/// Keeps as many threads at work as there are jobs.
void EditBatch::begin_to_edit() {
    while (in_work_.size() < jobs_ && next_place_ < places_.size()) {
        const Range range = next_range();
        in_work_.push_back(std::async(launch_policy(jobs_), [this, range] {
            std::vector<Edited> all;
            for (std::size_t i = range.first; i < range.second; ++i) all.push_back(edited(i));
            return all;
        }));
    }
}

#include "cli/EditBatch.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

#include "cli/read_cif.h"

namespace {

bool is_error(const Problem& problem) { return problem.level == Problem::Level::error; }

/// That of edits of a field; what is found is the block that entries have in common.
Problem contradiction(Problem problem) {
    problem.what = "the edits contradict each other";
    if (!problem.found.empty()) {
        problem.what += "; entries share what stands in data_" + problem.found;
        problem.found.clear();
    }
    return problem;
}

}  // namespace

EditBatch::EditBatch(std::vector<Place> places, unsigned int jobs, EditEntries edit)
    : groups_(std::move(places), jobs), edit_(std::move(edit)), in_work_(jobs) {}

EditBatch::~EditBatch() = default;

std::optional<EditBatch::Edited> EditBatch::next() {
    begin_to_edit();
    if (done_.empty()) {
        if (in_work_.empty()) return std::nullopt;
        std::vector<Edited> all = in_work_.take_first();
        std::move(all.begin(), all.end(), std::back_inserter(done_));
    }
    Edited first = std::move(done_.front());
    done_.pop_front();
    return first;
}

EditBatch::Edited EditBatch::edited(const Place& place, std::size_t number) const {
    Edited done;
    const auto refuse = [&](const std::string& message) {
        done.problems.emplace_back().what = message;
    };
    try {
        edit(place, number, done);
    } catch (const InputError& error) {
        refuse(error.what());
    } catch (const CifError& error) {
        refuse(not_cif(place.path, error));
    } catch (const std::bad_alloc&) {
        refuse(place.path + ": out of memory");
    }
    return done;
}

void EditBatch::edit(const Place& place, std::size_t number, Edited& done) const {
    if (!place.problem.empty()) throw InputError(place.problem);
    done.file.emplace(place.path);
    EditSession session(done.file->bytes());
    FileChange change = edit_(number, session.entries());
    done.problems = std::move(change.problems);
    for (Problem& problem : done.problems) problem.file = done.file->path();
    if (std::any_of(done.problems.begin(), done.problems.end(), is_error)) return;
    session.apply(change.splices);
    if (!session.is_changed()) return;
    if (change.is_lasting) {
        const FileChange again = edit_(number, session.entries());
        if (!again.splices.empty()) {
            done.problems = {contradiction(again.first.value_or(Problem{}))};
            done.problems.back().file = done.file->path();
            return;
        }
    }
    done.bytes = session.bytes();
    done.splices = std::move(change.splices);
}

void EditBatch::begin_to_edit() {
    while (!in_work_.is_full() && !groups_.at_end()) {
        const std::size_t first = groups_.taken();
        auto places = std::make_shared<const std::vector<Place>>(groups_.take());
        in_work_.begin([this, first, places] {
            std::vector<Edited> all;
            all.reserve(places->size());
            for (std::size_t i = 0; i < places->size(); ++i) {
                all.push_back(edited((*places)[i], first + i));
            }
            return all;
        });
    }
}

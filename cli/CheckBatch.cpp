#include "cli/CheckBatch.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

#include "cli/EntryFile.h"
#include "cli/TextOutput.h"
#include "entries/Splice.h"

namespace {

/// How many repairs of one code are done at a time.
constexpr std::size_t most_repairs = 20 * FoundFaults::most_told;

/// Repairs the bytes of a file and checks what they have become: a repair may have hidden another.
void repair(const EntryFile& file, const WantedChecks& wanted, CheckedFile& checked) {
    constexpr int most_rounds = 10;
    std::string bytes = file.bytes();
    for (int round = 0; round < most_rounds; ++round) {
        const Splices repairs = repairs_of(checked.findings);
        if (repairs.empty()) break;
        if (round == 0) checked.file.emplace(file.path());
        checked.repairs += repairs.size();
        bytes = spliced(bytes, repairs);
        checked.findings = check_entries(EntryReader(bytes), wanted, most_repairs);
    }
    checked.findings = first_of_each_code(std::move(checked.findings), FoundFaults::most_told);
    checked.bytes = std::move(bytes);
}

CheckedFile checked_file(const Place& place, const CheckBatch::Wanted& wanted) {
    CheckedFile checked{place.path, place.problem};
    if (!place.problem.empty()) return checked;
    try {
        const EntryFile file(place.path);
        if (file.entries()) {
            const std::size_t most = wanted.repair ? most_repairs : FoundFaults::most_told;
            checked.findings = check_entries(*file.entries(), wanted.checks, most);
            if (wanted.repair) repair(file, wanted.checks, checked);
        } else if (file.cif_error()) {
            checked.is_cif = false;
            checked.findings.push_back(finding_of(*file.cif_error()));
        } else {
            checked.trouble = file.problem()->what;
        }
    } catch (const std::bad_alloc&) {
        checked = {place.path, place.path + ": out of memory"};
    } catch (const InputError& error) {
        checked.trouble = error.what();
    }
    for (CheckFinding& finding : checked.findings) finding.problem.file = place.path;
    return checked;
}

}  // namespace

CheckBatch::~CheckBatch() = default;

/// Puts what was repaired in the place of the file.
void CheckBatch::write(CheckedFile& checked) {
    try {
        checked.file->replace(checked.bytes, wanted_.keeps_backups);
        changed_folders_.insert(std::filesystem::path(checked.file->place()).parent_path());
    } catch (const std::exception& error) {
        checked.trouble = error.what();
        checked.repairs = 0;
    }
    checked.file.reset();
}

std::optional<CheckedFile> CheckBatch::next() {
    while (!in_work_.is_full() && !places_.at_end()) {
        auto places = std::make_shared<const std::vector<Place>>(places_.take());
        in_work_.begin([this, places] {
            Files files;
            files.reserve(places->size());
            for (const Place& place : *places) files.push_back(checked_file(place, wanted_));
            return files;
        });
    }
    if (done_.empty()) {
        if (in_work_.empty()) {
            for (const std::string& folder : changed_folders_) sync_folder(folder);
            changed_folders_.clear();
            return std::nullopt;
        }
        Files files = in_work_.take_first();
        std::move(files.begin(), files.end(), std::back_inserter(done_));
    }
    ++given_;
    std::optional<CheckedFile> first = std::move(done_.front());
    done_.pop_front();
    if (first->file) write(*first);
    return first;
}

#include "cli/CheckBatch.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <new>
#include <utility>

#include "cli/EntryFile.h"
#include "cli/TextOutput.h"
#include "cli/launch_policy.h"
#include "entries/Splice.h"

namespace {

/// Why a file cannot be written again; empty: it can.
std::string unwritable(const EntryFile& file) {
    if (file.path() == "-") return "standard input cannot be repaired";
    return file.is_packed() ? file.path() + ": packed files cannot be repaired" : "";
}

/// Does the repairs of a file, and checks again what it has become.
void repair(const EntryFile& file, const WantedChecks& wanted, CheckedFile& checked) {
    const Splices repairs = repairs_of(checked.findings);
    if (repairs.empty()) return;
    checked.trouble = unwritable(file);
    if (!checked.trouble.empty()) return;
    try {
        const std::string repaired = spliced(file.bytes(), repairs);
        const EntryReader entries(repaired);
        CheckFindings left = check_entries(entries, wanted);
        TextOutput output(file.path());
        output.write(repaired);
        output.close();
        checked.findings = std::move(left);
        checked.repairs = repairs.size();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        checked.trouble = error.what();
    }
}

CheckedFile checked_file(const Place& place, const CheckBatch::Wanted& wanted) {
    CheckedFile checked{place.path, place.problem};
    if (!place.problem.empty()) return checked;
    try {
        const EntryFile file(place.path);
        if (file.entries()) {
            checked.findings = check_entries(*file.entries(), wanted.checks);
            if (wanted.repair) repair(file, wanted.checks, checked);
        } else if (file.cif_error()) {
            checked.is_cif = false;
            checked.findings.push_back(finding_of(*file.cif_error()));
        } else {
            checked.trouble = file.problem()->what;
        }
    } catch (const std::bad_alloc&) {
        checked = {place.path, place.path + ": out of memory"};
    }
    for (CheckFinding& finding : checked.findings) finding.problem.file = place.path;
    return checked;
}

}  // namespace

CheckBatch::~CheckBatch() = default;

std::optional<CheckedFile> CheckBatch::next() {
    while (in_work_.size() < jobs_ && !places_.at_end()) {
        auto places = std::make_shared<const std::vector<Place>>(places_.take());
        in_work_.push_back(std::async(launch_policy(jobs_), [this, places] {
            Files files;
            files.reserve(places->size());
            for (const Place& place : *places) files.push_back(checked_file(place, wanted_));
            return files;
        }));
    }
    if (done_.empty()) {
        if (in_work_.empty()) return std::nullopt;
        Files files = in_work_.front().get();
        in_work_.pop_front();
        std::move(files.begin(), files.end(), std::back_inserter(done_));
    }
    ++given_;
    std::optional<CheckedFile> first = std::move(done_.front());
    done_.pop_front();
    return first;
}

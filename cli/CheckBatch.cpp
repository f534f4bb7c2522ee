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

/// Does the repairs of a file, and checks what it has become: a repair may have hidden another.
void repair(const EntryFile& file, const WantedChecks& wanted, CheckedFile& checked) {
    constexpr int most_rounds = 20;
    CheckFindings findings = checked.findings;
    std::string bytes = file.bytes();
    std::size_t count = 0;
    for (int round = 0; round < most_rounds; ++round) {
        const Splices repairs = repairs_of(findings);
        if (repairs.empty()) break;
        count += repairs.size();
        bytes = spliced(bytes, repairs);
        findings = check_entries(EntryReader(bytes), wanted);
    }
    if (count == 0) return;
    checked.trouble = unwritable(file);
    if (!checked.trouble.empty()) return;
    TextOutput output(file.path());
    output.write(bytes);
    output.close();
    checked.findings = std::move(findings);
    checked.repairs = count;
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
    } catch (const std::exception& error) {  // nothing of it has been written
        checked.trouble = place.path + ": " + error.what();
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

// A CIF file, looked through for faults: where they are, which are wanted, what repairs do.
#include <algorithm>

#include "checks/check_entries.h"
#include "fuzz/Input.h"
#include "markup/Utf8.h"

namespace {

/// What tells findings from each other.
std::string told(const CheckFindings& findings) {
    std::string text;
    for (const CheckFinding& finding : findings) {
        text.append(finding.code->code).append(" ");
        text += std::to_string(finding.problem.offset.value_or(0));
        text.append(" ").append(std::to_string(finding.count)).append(" ");
        text.append(finding.problem.what).append(" ").append(finding.problem.found).append(" ");
        text.append(finding.problem.expected).append(" ");
        if (finding.repair) text.append(finding.repair->after);
        text += '\n';
    }
    return text;
}

/// The line and the column of a place, counted from the front. Any kind of line end is one.
std::pair<unsigned long, unsigned long> place_in(const std::string& bytes, std::size_t offset) {
    std::pair<unsigned long, unsigned long> place(1, 1);
    for (std::size_t i = 0; i < offset; ++i) {
        if (bytes[i] == '\n' || (bytes[i] == '\r' && bytes[i + 1] != '\n')) {
            ++place.first;
            place.second = 1;
        } else {
            place.second += is_continuation_byte(bytes[i]) ? 0U : 1U;
        }
    }
    return place;
}

void check_places(const CheckFindings& findings, const std::string& bytes) {
    std::size_t last = 0;
    for (const CheckFinding& finding : findings) {
        const std::size_t offset = finding.problem.offset.value_or(0);
        require(offset >= last && offset <= bytes.size(), "findings follow the file", bytes);
        last = offset;
        const FileRegion& region = finding.region;
        require(std::pair(region.line, region.column) == place_in(bytes, offset),
                "a finding is where it says", told({finding}) + bytes);
        if (!finding.repair) continue;
        const FileRegion& repaired = finding.repaired_region;
        const std::size_t from = finding.repair->from, to = from + finding.repair->before.size();
        require(std::pair(repaired.line, repaired.column) == place_in(bytes, from) &&
                    std::pair(repaired.end_line, repaired.end_column) == place_in(bytes, to),
                "a repair is where it says", told({finding}) + bytes);
    }
}

/// What is wanted, or told at most, is what of all findings is so.
void check_selection(const EntryReader& entries, const CheckFindings& all, unsigned int choice) {
    if (all.empty()) return;
    const CheckCode* const code = all[choice % all.size()].code;
    const auto level = static_cast<Problem::Level>(choice % 3);
    CheckFindings only = all, others = all;
    std::erase_if(only, [&](const CheckFinding& finding) { return finding.code != code; });
    std::erase_if(others, [&](const CheckFinding& finding) {
        return finding.code == code || finding.problem.level < level;
    });
    if (choice % 4 == 0) {
        require(told(check_entries(entries, {Problem::Level::note, {code}, {}})) == told(only),
                "one code is what it is among all", code->code);
    } else if (choice % 4 == 1) {
        require(told(check_entries(entries, {level, {}, {code}})) == told(others),
                "the others are what they are", code->code);
    } else {
        const std::size_t most = choice % 4 - 1;
        require(told(check_entries(entries, {}, most)) == told(first_of_each_code(all, most)),
                "the first are told", std::to_string(most));
    }
}

/// Repairs come to an end, and leave a file with as many values.
void check_repairs(const EntryReader& entries, const CheckFindings& findings, int rounds) {
    const std::string bytes(entries.document().bytes());
    const Splices repairs = repairs_of(findings);
    if (repairs.empty()) return;
    const std::string repaired = spliced(bytes, repairs);
    require(rounds > 0, "repairs come to an end", told(findings) + bytes);
    try {
        const EntryReader again(repaired);
        require(again.document().blocks() == entries.document().blocks(),
                "repairs leave the blocks", told(findings) + bytes);
        for (std::size_t block = 0; block < again.document().blocks(); ++block) {
            const auto items = again.document().items(block),
                       before = entries.document().items(block);
            const auto same_size = [](const CifItem* a, const CifItem* b) {
                return a->size() == b->size();
            };
            require(std::equal(items.begin(), items.end(), before.begin(), before.end(), same_size),
                    "repairs leave the items", told(findings) + bytes);
        }
        check_repairs(again, check_entries(again), rounds - 1);
    } catch (const CifError& error) {
        require(false, "a repaired file can be read", repaired + error.what());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        const EntryReader entries(bytes);
        const CheckFindings findings = check_entries(entries);
        check_places(findings, bytes);
        check_selection(entries, findings, size == 0 ? 0 : data[size / 2]);
        check_repairs(entries, findings, 10);
    } catch (const CifError& error) {
        const CheckFinding finding = finding_of(error);
        require(finding.region.line >= 1 && finding.region.column >= 1,
                "what is not CIF has a place", bytes);
    }
    return 0;
}

#include "checks/check_entries.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "checks/CheckedEntry.h"
#include "markup/Utf8.h"

namespace {

/// What looks for codes in each entry.
struct EntryCheck {
    std::span<const CheckCode> (*codes)();
    void (*check)(CheckedEntry& entry);
};

constexpr EntryCheck entry_checks[] = {
    {publication_codes, check_publication},
    {formula_codes, check_formula},
    {atom_codes, check_atoms},
    {cell_codes, check_cell},
    {symmetry_codes, check_symmetry},
    {measurement_codes, check_measurement},
};

/// Likewise in a file.
struct FileCheck {
    std::span<const CheckCode> (*codes)();
    void (*check)(const CifDocument& document, FoundFaults& faults);
};

constexpr FileCheck file_checks[] = {
    {file_codes, check_file},
    {text_codes, check_text},
};

const CheckCode& code_named(const char* code) {
    const CheckCode* const row = check_code(code);
    if (!row) throw std::logic_error("no such code: '" + std::string(code) + "'");
    return *row;
}

/// Where findings of a document stand.
class Regions {
public:
    explicit Regions(const CifDocument& document) : document_(document) {}

    void note(CheckFinding& finding) {
        const std::size_t offset = finding.problem.offset.value_or(0);
        const char* const place = document_.bytes().data() + offset;
        finding.problem.line = document_.line_of(place);
        finding.problem.column = document_.column_of(place);
        finding.region = region(offset, offset < document_.bytes().size() ? 1 : 0);
        if (!finding.repair) return;
        finding.repaired_region = region(finding.repair->from, finding.repair->before.size());
    }

private:
    FileRegion region(std::size_t from, std::size_t length) {
        FileRegion region;
        find(from, region.line, region.column);
        find(from + length, region.end_line, region.end_column);
        return region;
    }

    /// Counts from the last place that was asked for, if it is in the same line: lines may be long,
    /// and neighbours are asked for one after the other.
    void find(std::size_t offset, unsigned long& line, unsigned long& column) {
        const char* const place = document_.bytes().data() + offset;
        line = document_.line_of(place);
        if (line != last_line_) {
            last_line_ = line;
            last_ = place - (document_.column_of(place) - 1);
            last_column_ = 1;
        }
        if (place >= last_) {
            last_column_ += characters_in(last_, place);
        } else {
            last_column_ -= characters_in(place, last_);
        }
        last_ = place;
        column = last_column_;
    }

    static unsigned long characters_in(const char* from, const char* to) {
        const auto begins_character = [](char c) { return !is_continuation_byte(c); };
        return static_cast<unsigned long>(std::count_if(from, to, begins_character));
    }

    const CifDocument& document_;
    unsigned long last_line_ = 0;
    const char* last_ = nullptr;
    unsigned long last_column_ = 1;
};

/// Takes the problems that reading has found of an entry.
void take_problems(CifEntry& entry, FoundFaults& faults) {
    for (Problem& problem : entry.problems) {
        faults.add({&code_named(problem.code), std::move(problem)});
    }
}

}  // namespace

CheckFindings check_entries(const EntryReader& entries, const WantedChecks& wanted,
                            std::size_t most) {
    FoundFaults faults(wanted, most);
    const CifDocument& document = entries.document();
    for (const FileCheck& row : file_checks) {
        if (wanted.contain_any(row.codes())) row.check(document, faults);
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        CifEntry entry = entries[i];
        CheckedEntry checked(document, entry, entries.common_block_of(i), faults);
        for (const EntryCheck& row : entry_checks) {
            if (wanted.contain_any(row.codes())) row.check(checked);
        }
        take_problems(entry, faults);
    }
    CheckFindings findings = faults.take();
    Regions regions(document);
    for (CheckFinding& finding : findings) regions.note(finding);
    return findings;
}

CheckFinding finding_of(const CifError& error) {
    CheckFinding finding{&code_named(error.problem().code), error.problem()};
    Problem& problem = finding.problem;
    problem.level = finding.code->level;
    if (problem.what.empty()) problem.what = finding.code->summary;
    finding.region = {problem.line, problem.column, problem.line, problem.column};
    return finding;
}

Splices repairs_of(const CheckFindings& findings) {
    Splices repairs;
    for (const CheckFinding& finding : findings) {
        if (finding.repair) repairs.push_back(*finding.repair);
    }
    std::stable_sort(repairs.begin(), repairs.end(),
                     [](const Splice& a, const Splice& b) { return a.from < b.from; });
    std::size_t end = 0;
    bool any = false;
    std::erase_if(repairs, [&](const Splice& repair) {
        const bool touches = any && repair.from <= end;
        if (!touches) end = repair.from + repair.before.size();
        any = true;
        return touches;
    });
    return repairs;
}

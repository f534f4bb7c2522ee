#include "checks/add_finding.h"

#include <stdexcept>
#include <utility>

CheckFinding& add_finding(FoundFaults& findings, const CifDocument& document, std::string_view code,
                          const char* place, std::string found, std::string expected) {
    const CheckCode* const row = check_code(code);
    if (!row) throw std::logic_error("no such code: '" + std::string(code) + "'");
    CheckFinding& finding = findings.add({row, {}});
    Problem& problem = finding.problem;
    problem.level = row->level;
    problem.code = row->code;
    problem.line = document.line_of(place);
    problem.column = document.column_of(place);
    problem.offset = static_cast<std::size_t>(place - document.bytes().data());
    if (document.is_in_block(place)) {
        problem.block = std::string(document.name_of(document.block_at(place)));
    }
    problem.what = row->summary;
    problem.found = std::move(found);
    problem.expected = std::move(expected);
    return finding;
}

Splice splice_of(const CifDocument& document, std::string_view bytes, std::string after) {
    return {static_cast<std::size_t>(bytes.data() - document.bytes().data()), std::string(bytes),
            std::move(after)};
}

#include "output/CheckLayout.h"

#include "output/shown_bytes.h"

CheckLayout::~CheckLayout() = default;

namespace {

constexpr CheckOutput outputs[] = {
    {"text", "a line each: file:line:column: level: code: what is wrong", make_check_lines},
    {"json", "an array of objects", make_check_json},
    {"sarif", "SARIF 2.1.0, so that other programs show findings in place", make_sarif},
};

}  // namespace

std::span<const CheckOutput> check_outputs() { return outputs; }

const char* name_of(Problem::Level level) {
    switch (level) {
        case Problem::Level::note:
            return "note";
        case Problem::Level::warning:
            return "warning";
        default:
            return "error";
    }
}

std::string sentence_of(const CheckFinding& finding) {
    const Problem& problem = finding.problem;
    const bool says_more = !problem.what.empty() && problem.what != finding.code->summary;
    std::string text;
    if (problem.block) text.append("data_").append(*problem.block).append(": ");
    if (!problem.item.empty()) text.append(problem.item).append(": ");
    if (problem.what.empty() && !problem.expected.empty()) {
        text.append("expected ").append(problem.expected).append(", not '");
        return text.append(shown_in_line(problem.found)).append("'");
    }
    text += says_more ? problem.what : finding.code->summary;
    if (!problem.found.empty()) {
        text.append(says_more ? " '" : ": '").append(shown_in_line(problem.found)).append("'");
    }
    if (!problem.expected.empty()) text.append("; expected ").append(problem.expected);
    return text;
}

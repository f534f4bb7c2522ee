#include "output/CheckLayout.h"
#include "output/shown_bytes.h"

namespace {

class CheckLines : public CheckLayout {
public:
    std::string finding(const CheckFinding& finding) const override {
        const Problem& problem = finding.problem;
        std::string line = shown_in_line(problem.file, problem.file.size());
        line.append(":").append(std::to_string(problem.line));
        if (problem.column > 0) line.append(":").append(std::to_string(problem.column));
        line.append(": ").append(name_of(problem.level));
        line.append(": ").append(finding.code->code);
        line.append(": ").append(shown_in_line(sentence_of(finding), longest_sentence));
        if (finding.repair) {
            line.append(" [repair: ").append(in_bytes(finding.repair->before));
            line.append(" -> ").append(in_bytes(finding.repair->after)).append("]");
        }
        return line + '\n';
    }

private:
    /// Blanks at the ends, and nothing, are seen between quotes.
    static std::string in_bytes(const std::string& bytes) {
        const bool needs_quotes = bytes.empty() || bytes.front() == ' ' || bytes.back() == ' ';
        std::string text = shown_in_line(bytes);
        return needs_quotes ? "'" + text + "'" : text;
    }

    static constexpr std::size_t longest_sentence = 1000;  // in characters
};

}  // namespace

std::unique_ptr<CheckLayout> make_check_lines() { return std::make_unique<CheckLines>(); }

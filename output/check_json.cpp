#include "output/CheckLayout.h"
#include "output/harmless_json.h"

namespace {

using Json = nlohmann::ordered_json;

Json json_of(const Splice& repair) {
    return {{"offset", repair.from}, {"before", repair.before}, {"after", repair.after}};
}

class CheckJson : public CheckLayout {
public:
    std::string head(const std::string& /*version*/) const override { return "["; }

    std::string finding(const CheckFinding& finding) const override {
        const Problem& problem = finding.problem;
        const Json json{{"code", finding.code->code},
                        {"level", name_of(problem.level)},
                        {"file", problem.file},
                        {"line", problem.line},
                        {"column", problem.column},
                        {"block", problem.block ? Json(*problem.block) : Json()},
                        {"item", problem.item},
                        {"message", sentence_of(finding)},
                        {"found", problem.found},
                        {"expected", problem.expected},
                        {"repair", finding.repair ? json_of(*finding.repair) : Json()}};
        return '\n' + harmless_json(json);
    }

    std::string separator() const override { return ","; }
    std::string foot() const override { return "\n]\n"; }
};

}  // namespace

std::unique_ptr<CheckLayout> make_check_json() { return std::make_unique<CheckJson>(); }

#include "output/CheckLayout.h"
#include "output/JsonWriter.h"

namespace {

void write(JsonWriter& json, const char* name, const Splice& repair) {
    json.begin_object(name);
    json.add_integer("offset", static_cast<std::int64_t>(repair.from));
    json.add_text("before", repair.before);
    json.add_text("after", repair.after);
    json.end_object();
}

class CheckJson : public CheckLayout {
public:
    std::string head(const std::string& /*version*/) const override { return "["; }

    std::string finding(const CheckFinding& finding) const override {
        const Problem& problem = finding.problem;
        JsonWriter json("\n");
        json.begin_object();
        json.add_text("code", finding.code->code);
        json.add_text("level", name_of(problem.level));
        json.add_text("file", problem.file);
        json.add_integer("line", static_cast<std::int64_t>(problem.line));
        json.add_integer("column", static_cast<std::int64_t>(problem.column));
        if (problem.block) {
            json.add_text("block", *problem.block);
        } else {
            json.add_null("block");
        }
        json.add_text("item", problem.item);
        json.add_text("message", sentence_of(finding));
        json.add_text("found", problem.found);
        json.add_text("expected", problem.expected);
        if (finding.repair) {
            write(json, "repair", *finding.repair);
        } else {
            json.add_null("repair");
        }
        json.end_object();
        return json.take();
    }

    std::string separator() const override { return ","; }
    std::string foot() const override { return "\n]\n"; }
};

}  // namespace

std::unique_ptr<CheckLayout> make_check_json() { return std::make_unique<CheckJson>(); }

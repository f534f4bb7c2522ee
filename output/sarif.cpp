#include <cstddef>
#include <string_view>

#include "output/CheckLayout.h"
#include "output/harmless_json.h"

namespace {

using Json = nlohmann::ordered_json;

/// The name of a file as a URI, or as a reference that is relative to where the program was called.
std::string uri_of(std::string_view file) {
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr char hexadecimal[] = "0123456789ABCDEF";
    std::string uri = file.starts_with('/') ? "file://" : "";
    for (const char c : file) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        uri += '%';
        uri += hexadecimal[byte >> 4U];
        uri += hexadecimal[byte & 0xFU];
    }
    return uri;
}

Json location_of(const std::string& file) { return {{"uri", uri_of(file)}}; }

Json json_of(const FileRegion& region) {
    return {{"startLine", region.line},
            {"startColumn", region.column},
            {"endLine", region.end_line},
            {"endColumn", region.end_column}};
}

Json rule_of(const CheckCode& code) {
    return {{"id", code.code},
            {"shortDescription", {{"text", code.summary}}},
            {"fullDescription", {{"text", code.explanation}}},
            {"defaultConfiguration", {{"level", name_of(code.level)}}}};
}

Json fix_of(const CheckFinding& finding) {
    const Json replacement{{"deletedRegion", json_of(finding.repaired_region)},
                           {"insertedContent", {{"text", finding.repair->after}}}};
    Json change{{"artifactLocation", location_of(finding.problem.file)}};
    change["replacements"] = Json::array({replacement});
    Json fix{{"description", {{"text", "Replace the value"}}}};
    fix["artifactChanges"] = Json::array({std::move(change)});
    return fix;
}

class Sarif : public CheckLayout {
public:
    std::string head(const std::string& version) const override {
        Json rules = Json::array();
        for (const CheckCode& code : check_codes()) rules.push_back(rule_of(code));
        const Json driver{{"name", "lmrtext"}, {"version", version}, {"rules", std::move(rules)}};
        return "{\n\"$schema\": "
               "\"https://docs.oasis-open.org/sarif/sarif/v2.1.0/os/schemas/"
               "sarif-schema-2.1.0.json\",\n\"version\": \"2.1.0\",\n\"runs\": [{\n"
               "\"columnKind\": \"unicodeCodePoints\",\n\"tool\": {\"driver\": " +
               harmless_json(driver) + "},\n\"results\": [\n";
    }

    std::string finding(const CheckFinding& finding) const override {
        const Problem& problem = finding.problem;
        const std::ptrdiff_t rule = finding.code - check_codes().data();
        Json location{{"physicalLocation",
                       {{"artifactLocation", location_of(problem.file)},
                        {"region", json_of(finding.region)}}}};
        if (problem.block) {
            const Json block{{"fullyQualifiedName", "data_" + *problem.block + '/' + problem.item}};
            location["logicalLocations"] = Json::array({block});
        }
        Json result{{"ruleId", finding.code->code},
                    {"ruleIndex", rule},
                    {"level", name_of(problem.level)},
                    {"message", {{"text", sentence_of(finding)}}}};
        result["locations"] = Json::array({std::move(location)});
        if (finding.repair) result["fixes"] = Json::array({fix_of(finding)});
        return harmless_json(result);
    }

    std::string separator() const override { return ",\n"; }
    std::string foot() const override { return "\n]}]}\n"; }
};

}  // namespace

std::unique_ptr<CheckLayout> make_sarif() { return std::make_unique<Sarif>(); }

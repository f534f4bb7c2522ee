#include "output/JsonLayout.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "markup/TextItemToHtml5Greek.h"
#include "markup/TextItemToStringColor.h"
#include "output/comparison_summary.h"
#include "output/finding_sentences.h"
#include "output/harmless_json.h"
#include "output/match_reason.h"
#include "text/Position.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

using Json = nlohmann::ordered_json;

/// The text and what is not as by default.
Json json_of(const TextAtom& atom) {
    Json json{{"text", atom.text()}};
    if (atom.valign() != 0) json["valign"] = atom.valign();
    if (atom.bold()) json["bold"] = true;
    if (atom.italic()) json["italic"] = true;
    if (atom.overstrike()) json["overstrike"] = true;
    if (atom.invisible()) json["invisible"] = true;
    if (atom.color() != TextItem::black) {
        json["color"] = TextItemToStringColor().convert(atom.color());
    }
    if (!atom.replacement_txt().empty()) json["replacement"] = atom.replacement_txt();
    if (atom.greek() != TextItem::no_symbol) {
        json["greek"] = TextItemToHtml5Greek().convert(atom.greek());
    }
    return json;
}

Json json_of(const StringSlice& range) { return {{"from", range.from()}, {"to", range.to()}}; }

/// The runs of uniform style, with their positions where there is a teller.
Json atoms_of(const TextItem& item, const PositionTeller* teller) {
    Json atoms = Json::array();
    unsigned int from = 0;
    for (const TextAtom& atom : item.atomize()) {
        const unsigned int to = from + length_of(atom.text());
        Json written = json_of(atom);
        if (teller && !item.characters().empty()) written.update(json_of(teller->told({from, to})));
        atoms.push_back(std::move(written));
        from = to;
    }
    return atoms;
}

/// A text: as it is, as it is shown, marked up and in runs.
class Text {
public:
    Text(const TextItem& item, const std::optional<TextPositions>& positions)
        : item_(item),
          displayed_(item),
          teller_(item, displayed_, positions.value_or(TextPositions())),
          tells_(positions) {}

    void write_to(Json& json, Html5RichTextGenerator& generator) const {
        json["text"] = item_.characters();
        json["displayed"] = displayed_.text();
        json["markup"] = item_.mark_up_text(generator);
        json["atoms"] = atoms_of(item_, tells_ ? &teller_ : nullptr);
    }
    StringSlice told(const StringSlice& range) const { return teller_.told(range); }

private:
    const TextItem& item_;
    DisplayedText displayed_;
    PositionTeller teller_;
    bool tells_;  // of runs; of what differs always
};

/// What was found in a field, and where.
Json matches_of(const EntryField& field, const Text& text) {
    Json matches = Json::array();
    for (const FieldMatch& match : field.matches) {
        Json json{{"term", match.term}};
        json.update(json_of(text.told(match.place)));
        json["reason"] = reason_of(match);
        matches.push_back(std::move(json));
    }
    return matches;
}

const char* verdict_of(const Finding& finding) {
    return name_of(finding.is_equivalent ? Verdict::equivalent : Verdict::different);
}

/// One finding, with what it has.
Json json_of(const Finding& finding, const Text& left, const Text& right,
             const FindingSentences& sentences) {
    const FindingReason& reason = reason_of(finding);
    Json json{{"kind", name_of(reason.kind)},
              {"reason", reason.name},
              {"verdict", verdict_of(finding)},
              {"left", json_of(left.told(finding.left))},
              {"right", json_of(right.told(finding.right))}};
    if (!finding.subject.empty()) json["subject"] = finding.subject;
    const std::pair<const char*, const std::optional<double>&> numbers[] = {
        {"left_number", finding.left_number},
        {"right_number", finding.right_number},
        {"sigmas", finding.sigmas},
        {"limit", finding.limit},
    };
    for (const auto& [name, number] : numbers) {
        if (number) json[name] = *number;
    }
    if (finding.is_coarse) json["coarse"] = true;
    json["sentence"] = sentences.clause(finding);
    return json;
}

/// A field of two entries; a side without text is null.
Json json_of(const ComparedField& field, const std::optional<TextPositions>& positions,
             Html5RichTextGenerator& generator) {
    std::optional<Text> left, right;
    Json json{{"label", field.label}, {"group", field.group}, {"verdict", name_of(field.verdict)},
              {"left", nullptr},      {"right", nullptr},     {"findings", Json::array()}};
    if (field.left) left.emplace(*field.left, positions).write_to(json["left"], generator);
    if (field.right) right.emplace(*field.right, positions).write_to(json["right"], generator);
    if (field.findings.empty()) return json;
    const ComparedText left_side(*field.left), right_side(*field.right);
    const FindingSentences sentences(left_side, right_side);
    for (const Finding& finding : field.findings) {
        json["findings"].push_back(json_of(finding, *left, *right, sentences));
    }
    return json;
}

Json json_of(const ComparisonLayout::Side& side) {
    return {{"file", side.file}, {"block", side.block}};
}

LaidOutPart written(const Json& json) { return {'\n' + harmless_json(json)}; }

}  // namespace

JsonLayout::~JsonLayout() = default;

std::string JsonLayout::head(const std::string& /*title*/) { return "["; }
std::string JsonLayout::foot() { return "\n]\n"; }
std::string JsonLayout::separator() const { return ","; }

LaidOutPart JsonLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    Json json{{"file", file}, {"block", block}, {"fields", Json::array()}};
    for (const EntryField& field : fields) {
        Json& added =
            json["fields"].emplace_back(Json{{"label", field.label}, {"group", field.group}});
        const Text text(field.item, positions_);
        text.write_to(added, generator_);
        if (!field.matches.empty()) added["matches"] = matches_of(field, text);
    }
    return written(json);
}

LaidOutPart JsonLayout::comparison(const Side& left, const Side& right, PairingReason reason,
                                   const EntryComparison& compared) {
    Json json{{"left", json_of(left)},
              {"right", json_of(right)},
              {"pairing", name_of(reason)},
              {"verdict", name_of(compared.verdict())},
              {"fields", Json::array()}};
    for (const ComparedField& field : compared.fields) {
        json["fields"].push_back(json_of(field, positions_, generator_));
    }
    return written(json);
}

LaidOutPart JsonLayout::only(const Side& entry, Verdict verdict) {
    const bool is_left = verdict == Verdict::only_left;
    return written({{"left", is_left ? json_of(entry) : Json()},
                    {"right", is_left ? Json() : json_of(entry)},
                    {"pairing", nullptr},
                    {"verdict", name_of(verdict)},
                    {"fields", Json::array()}});
}

std::string JsonLayout::summary(const ComparisonSummary& summary, std::span<const Field> compared) {
    return summary_as_json(summary, compared);
}

#include "output/JsonLayout.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "markup/TextItemToHtml5Greek.h"
#include "markup/TextItemToStringColor.h"
#include "output/JsonWriter.h"
#include "output/comparison_summary.h"
#include "output/finding_sentences.h"
#include "output/match_reason.h"
#include "text/Position.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

/// The text and what is not as by default.
void write(JsonWriter& json, const TextAtom& atom) {
    json.add_text("text", atom.text());
    if (atom.valign() != 0) json.add_integer("valign", atom.valign());
    if (atom.bold()) json.add_true("bold");
    if (atom.italic()) json.add_true("italic");
    if (atom.overstrike()) json.add_true("overstrike");
    if (atom.invisible()) json.add_true("invisible");
    if (atom.color() != TextItem::black) {
        json.add_text("color", TextItemToStringColor().convert(atom.color()));
    }
    if (!atom.replacement_txt().empty()) json.add_text("replacement", atom.replacement_txt());
    if (atom.greek() != TextItem::no_symbol) {
        json.add_text("greek", TextItemToHtml5Greek().convert(atom.greek()));
    }
}

void write(JsonWriter& json, const StringSlice& range) {
    json.add_integer("from", range.from());
    json.add_integer("to", range.to());
}

/// The runs of uniform style, with their positions where there is a teller.
void write_atoms(JsonWriter& json, const std::vector<TextAtom>& atoms,
                 const PositionTeller* teller) {
    json.begin_array("atoms");
    unsigned int from = 0;
    for (const TextAtom& atom : atoms) {
        const unsigned int to = from + length_of(atom.text());
        json.begin_object();
        write(json, atom);
        if (teller) write(json, teller->told({from, to}));
        json.end_object();
        from = to;
    }
    json.end_array();
}

/// A text: as it is, as it is shown, marked up and in runs.
class Text {
public:
    Text(const TextItem& item, const std::optional<TextPositions>& positions)
        : item_(item),
          atoms_(item.atomize()),
          displayed_(item, atoms_),
          teller_(item, displayed_, positions.value_or(TextPositions())),
          tells_(positions && !item.characters().empty()) {}

    void write_to(JsonWriter& json, Html5RichTextGenerator& generator) const {
        json.add_text("text", item_.characters());
        json.add_text("displayed", displayed_.text());
        json.add_text("markup", item_.mark_up_text(generator));
        write_atoms(json, atoms_, tells_ ? &teller_ : nullptr);
    }
    StringSlice told(const StringSlice& range) const { return teller_.told(range); }

private:
    const TextItem& item_;
    std::vector<TextAtom> atoms_;
    DisplayedText displayed_;
    PositionTeller teller_;
    bool tells_;  // of runs; of what differs always
};

/// What was found in a field, and where.
void write_matches(JsonWriter& json, const EntryField& field, const Text& text) {
    json.begin_array("matches");
    for (const FieldMatch& match : field.matches) {
        json.begin_object();
        json.add_text("term", match.term);
        write(json, text.told(match.place));
        json.add_text("reason", reason_of(match));
        json.end_object();
    }
    json.end_array();
}

const char* verdict_of(const Finding& finding) {
    return name_of(finding.is_equivalent ? Verdict::equivalent : Verdict::different);
}

/// One finding, with what it has.
void write(JsonWriter& json, const Finding& finding, const Text& left, const Text& right,
           const FindingSentences& sentences) {
    const FindingReason& reason = reason_of(finding);
    json.begin_object();
    json.add_text("kind", name_of(reason.kind));
    json.add_text("reason", reason.name);
    json.add_text("verdict", verdict_of(finding));
    const auto write_range = [&](const char* name, const StringSlice& range) {
        json.begin_object(name);
        write(json, range);
        json.end_object();
    };
    write_range("left", left.told(finding.left));
    write_range("right", right.told(finding.right));
    if (!finding.subject.empty()) json.add_text("subject", finding.subject);
    const std::pair<const char*, const std::optional<double>&> numbers[] = {
        {"left_number", finding.left_number},
        {"right_number", finding.right_number},
        {"sigmas", finding.sigmas},
        {"limit", finding.limit},
    };
    for (const auto& [name, number] : numbers) {
        if (number) json.add_number(name, *number);
    }
    if (finding.is_coarse) json.add_true("coarse");
    json.add_text("sentence", sentences.clause(finding));
    json.end_object();
}

/// One side of a field; null without text.
void write_side(JsonWriter& json, const char* name, const std::optional<Text>& text,
                Html5RichTextGenerator& generator) {
    if (!text) return json.add_null(name);
    json.begin_object(name);
    text->write_to(json, generator);
    json.end_object();
}

/// A field of two entries.
void write(JsonWriter& json, const ComparedField& field,
           const std::optional<TextPositions>& positions, Html5RichTextGenerator& generator) {
    std::optional<Text> left, right;
    if (field.left) left.emplace(*field.left, positions);
    if (field.right) right.emplace(*field.right, positions);
    json.begin_object();
    json.add_text("label", field.label);
    json.add_text("group", field.group);
    json.add_text("verdict", name_of(field.verdict));
    write_side(json, "left", left, generator);
    write_side(json, "right", right, generator);
    json.begin_array("findings");
    if (!field.findings.empty()) {
        const ComparedText left_side(*field.left), right_side(*field.right);
        const FindingSentences sentences(left_side, right_side);
        for (const Finding& finding : field.findings) {
            write(json, finding, *left, *right, sentences);
        }
    }
    json.end_array();
    json.end_object();
}

/// An entry that is one side; null without it.
void write_side(JsonWriter& json, const char* name, const ComparisonLayout::Side* side) {
    if (!side) return json.add_null(name);
    json.begin_object(name);
    json.add_text("file", side->file);
    json.add_text("block", side->block);
    json.end_object();
}

}  // namespace

JsonLayout::~JsonLayout() = default;

std::string JsonLayout::head(const std::string& /*title*/) { return "["; }
std::string JsonLayout::foot() { return "\n]\n"; }
std::string JsonLayout::separator() const { return ","; }

LaidOutPart JsonLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    JsonWriter json("\n");
    json.begin_object();
    json.add_text("file", file);
    json.add_text("block", block);
    json.begin_array("fields");
    for (const EntryField& field : fields) {
        json.begin_object();
        json.add_text("label", field.label);
        json.add_text("group", field.group);
        const Text text(field.item, positions_);
        text.write_to(json, generator_);
        if (!field.matches.empty()) write_matches(json, field, text);
        json.end_object();
    }
    json.end_array();
    json.end_object();
    return {json.take()};
}

LaidOutPart JsonLayout::comparison(const Side& left, const Side& right, PairingReason reason,
                                   const EntryComparison& compared) {
    JsonWriter json("\n");
    json.begin_object();
    write_side(json, "left", &left);
    write_side(json, "right", &right);
    json.add_text("pairing", name_of(reason));
    json.add_text("verdict", name_of(compared.verdict()));
    json.begin_array("fields");
    for (const ComparedField& field : compared.fields) {
        write(json, field, positions_, generator_);
    }
    json.end_array();
    json.end_object();
    return {json.take()};
}

LaidOutPart JsonLayout::only(const Side& entry, Verdict verdict) {
    const bool is_left = verdict == Verdict::only_left;
    JsonWriter json("\n");
    json.begin_object();
    write_side(json, "left", is_left ? &entry : nullptr);
    write_side(json, "right", is_left ? nullptr : &entry);
    json.add_null("pairing");
    json.add_text("verdict", name_of(verdict));
    json.begin_array("fields");
    json.end_array();
    json.end_object();
    return {json.take()};
}

std::string JsonLayout::summary(const ComparisonSummary& summary, std::span<const Field> compared) {
    return summary_as_json(summary, compared);
}

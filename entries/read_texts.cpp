#include <exception>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/field_items.h"
#include "entries/pass_on_bad_alloc.h"
#include "entries/quantities.h"
#include "fields/LMRFieldNames.h"

namespace {

using Entry = CrystalStructureDatabaseEntry;
using Names = LMRFieldNames;

constexpr auto chemical = &Entry::chemical_info;
constexpr auto crystal = &Entry::crystal_info;
constexpr auto experimental = &Entry::experimental_info;
constexpr auto publication = &Entry::publication;

template <auto record, auto field>
std::string& text_field(Entry& entry) {
    return (*(entry.*record)).*field;
}

std::string& identifier(Entry& entry) { return entry.identifier; }

/// A record that holds a part of a field's text, on one line, numbers with their unit behind them.
struct TextRow {
    Names::TextID id;
    std::string& (*field)(Entry& entry);
    std::size_t part = 0;
};

constexpr TextRow text_rows[] = {
    {Names::identifier, identifier},
    {Names::formula, text_field<chemical, &ChemicalInfo::formula>},
    {Names::source, text_field<chemical, &ChemicalInfo::source>},
    {Names::bioactivity, text_field<chemical, &ChemicalInfo::bioactivity>},
    {Names::color, text_field<crystal, &CrystalInfo::color>},
    {Names::habit, text_field<crystal, &CrystalInfo::habit>},
    {Names::recrystallisation_solvent,
     text_field<crystal, &CrystalInfo::recrystallisation_solvent>},
    {Names::other_cell_details, text_field<crystal, &CrystalInfo::other_cell_details>},
    {Names::experimental_notes, text_field<crystal, &CrystalInfo::experimental_notes>},
    {Names::pressure, text_field<experimental, &ExperimentalInfo::pressure>},
    {Names::density_author, text_field<experimental, &ExperimentalInfo::density_author>},
    {Names::radiation_probe, text_field<experimental, &ExperimentalInfo::radiation_probe>},
    {Names::radiation_source, text_field<experimental, &ExperimentalInfo::radiation_source>},
    {Names::absolute_configuration,
     text_field<experimental, &ExperimentalInfo::absolute_configuration>},
    {Names::diffraction_details, text_field<experimental, &ExperimentalInfo::diffraction_details>},
    {Names::refinement_details, text_field<experimental, &ExperimentalInfo::refinement_details>},
    {Names::intensity_method, text_field<experimental, &ExperimentalInfo::intensity_method>},
    {Names::literature_reference, text_field<publication, &Publication::journal>,
     reference_journal},
    {Names::literature_reference, text_field<publication, &Publication::volume>, reference_volume},
    {Names::literature_reference, text_field<publication, &Publication::year>, reference_year},
    {Names::literature_reference, text_field<publication, &Publication::page>,
     first_page_of_reference},
};

constexpr double lowest_melting_point = 1;  // in K; helium's, under pressure

/// A name in the database's own mark-up, which the name as it is written stands beside; empty, with
/// a problem, when it cannot be styled.
std::string read_name(BlockReader& block, const BlockReader::Value& name, std::string& as_written) {
    as_written = one_line(name.text, true);
    try {
        const CodedText text(as_written);
        block.note_doubts(name, text);
        return text.tevo();
    } catch (const std::exception& error) {
        pass_on_bad_alloc(error);
        block.add_problem(name, "lone-mark", std::string(error.what()) + " in");
        return "";
    }
}

}  // namespace

void read_texts(BlockReader& block, Entry& entry) {
    for (const TextRow& row : text_rows) {
        const FieldItems& items = items_of(row.id);
        const FieldPart& part = items.parts[row.part];
        const BlockReader::Value value = block.first_value(part.tags());
        if (!value) continue;
        std::string& field = row.field(entry);
        field = block.decoded(value);
        if (*part.unit) field = with_unit(field, part.unit);
        std::string as_written = one_line(value.text);
        const bool is_formula = part.kind == FieldPart::formula;
        // Beside a part other things are shown, and a number in the database has no codes.
        const bool may_have_codes = items.parts.size() == 1 && part.kind != FieldPart::plain &&
                                    as_written != field && CodedText::may_hold_codes(as_written);
        if (is_formula || may_have_codes) {
            block.add_text({items.label, is_formula ? "cif-formula" : "cif-text",
                            is_formula ? field : std::move(as_written)});
        }
    }
    if (entry.identifier.empty()) entry.identifier = block.block().name();
}

void read_melting_point(BlockReader& block, Entry& entry) {
    const BlockReader::Value point = block.first_value(just(cif_tags::melting_point));
    const std::optional<UncertainValue> number = read_number(point.text);
    if (number && number->value < lowest_melting_point) {
        block.add_unexpected(point, "not-in-kelvin", "a temperature in K").level =
            Problem::Level::warning;
    }
    const FieldItems& field = items_of(Names::melting_point);
    FieldForm::Parts parts(field.parts.size());
    for (std::size_t i = 0; i < parts.size() && !(i > 0 && point); ++i) {
        parts[i] = text_of(block, field.parts[i]);
    }
    entry.crystal_info->melting_point = field.form.text_of(parts);
}

void read_names(BlockReader& block, Entry& entry) {
    std::string& compound_name = entry.chemical_info->compound_name;
    std::string as_written;
    std::size_t row = 0;
    for (std::string& name : block.texts(cif_tags::name)) {
        if (!compound_name.empty()) break;
        compound_name =
            read_name(block, {block.item(cif_tags::name), std::move(name), row++}, as_written);
    }
    if (!compound_name.empty()) {
        block.add_text({Names::text(Names::compound_name), "cif-text", as_written});
    }
    std::string all_as_written;
    for (const std::string_view tag : cif_tags::synonyms) {
        row = 0;
        for (std::string& name : block.texts(tag)) {
            const std::string synonym =
                read_name(block, {block.item(tag), std::move(name), row++}, as_written);
            if (synonym.empty()) continue;
            if (!all_as_written.empty()) all_as_written += "; ";
            all_as_written += as_written;
            entry.chemical_info->synonyms.push_back(synonym);
        }
    }
    if (!all_as_written.empty()) {
        block.add_text({Names::text(Names::synonym), "cif-text", all_as_written});
    }
}

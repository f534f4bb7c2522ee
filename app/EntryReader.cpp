#include "app/EntryReader.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <gemmi/symmetry.hpp>
#include <iterator>
#include <optional>
#include <span>
#include <sstream>
#include <stdexcept>

#include "app/CifFile.h"
#include "app/cif_text.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "markup/TevoRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

using Entry = CrystalStructureDatabaseEntry;

constexpr auto chemical = &Entry::chemical_info;
constexpr auto crystal = &Entry::crystal_info;
constexpr auto experimental = &Entry::experimental_info;
constexpr auto publication = &Entry::publication;

template <auto record, auto field>
std::string& text_field(Entry& entry) {
    return (*(entry.*record)).*field;
}

std::string& identifier(Entry& entry) { return entry.identifier; }

constexpr const char* cod_tag = "_cod_database_code";

/// An item whose text is shown as it stands, on one line, with what is written behind it.
struct TextRow {
    const char* tag;
    std::string& (*field)(Entry& entry);
    const char* unit;
};

// Where several items fill one field, the first that has a value does.
constexpr TextRow text_rows[] = {
    {cod_tag, identifier, ""},
    {"_chemical_formula_sum", text_field<chemical, &ChemicalInfo::formula>, ""},
    {"_chemical_compound_source", text_field<chemical, &ChemicalInfo::source>, ""},
    {"_chemical_properties_biological", text_field<chemical, &ChemicalInfo::bioactivity>, ""},
    {"_exptl_crystal_colour", text_field<crystal, &CrystalInfo::color>, ""},
    {"_exptl_crystal_description", text_field<crystal, &CrystalInfo::habit>, ""},
    {"_exptl_crystal_recrystallization_method",
     text_field<crystal, &CrystalInfo::recrystallisation_solvent>, ""},
    {"_chemical_melting_point", text_field<crystal, &CrystalInfo::melting_point>, " K"},
    {"_cell_special_details", text_field<crystal, &CrystalInfo::other_cell_details>, ""},
    {"_exptl_special_details", text_field<crystal, &CrystalInfo::experimental_notes>, ""},
    {"_diffrn_ambient_pressure", text_field<experimental, &ExperimentalInfo::pressure>, " kPa"},
    {"_exptl_crystal_density_diffrn", text_field<experimental, &ExperimentalInfo::density_author>,
     ""},
    {"_diffrn_radiation_probe", text_field<experimental, &ExperimentalInfo::radiation_probe>, ""},
    {"_diffrn_radiation_source", text_field<experimental, &ExperimentalInfo::radiation_source>, ""},
    {"_chemical_absolute_configuration",
     text_field<experimental, &ExperimentalInfo::absolute_configuration>, ""},
    {"_diffrn_special_details", text_field<experimental, &ExperimentalInfo::diffraction_details>,
     ""},
    {"_diffrn_measurement_method", text_field<experimental, &ExperimentalInfo::diffraction_details>,
     ""},
    {"_refine_special_details", text_field<experimental, &ExperimentalInfo::refinement_details>,
     ""},
    {"_diffrn_measurement_device_type",
     text_field<experimental, &ExperimentalInfo::intensity_method>, ""},
    {"_journal_name_full", text_field<publication, &Publication::journal>, ""},
    {"_journal_volume", text_field<publication, &Publication::volume>, ""},
    {"_journal_year", text_field<publication, &Publication::year>, ""},
    {"_journal_page_first", text_field<publication, &Publication::page>, ""},
};

constexpr const char* cell_tags[] = {"_cell_length_a",    "_cell_length_b",   "_cell_length_c",
                                     "_cell_angle_alpha", "_cell_angle_beta", "_cell_angle_gamma"};
constexpr const char* symbol_tags[] = {"_space_group_name_h-m_alt",
                                       "_symmetry_space_group_name_h-m"};
constexpr const char* hall_tags[] = {"_space_group_name_hall", "_symmetry_space_group_name_hall"};
constexpr const char* number_tags[] = {"_space_group_it_number", "_symmetry_int_tables_number"};
constexpr const char* operation_tags[] = {"_space_group_symop_operation_xyz",
                                          "_symmetry_equiv_pos_as_xyz"};
constexpr const char* temperature_tags[] = {"_diffrn_ambient_temperature",
                                            "_cell_measurement_temperature"};
constexpr const char* r_factor_tags[] = {"_refine_ls_r_factor_gt", "_refine_ls_r_factor_obs",
                                         "_refine_ls_r_factor_all"};
constexpr const char* synonym_tags[] = {"_chemical_name_common", "_chemical_name_mineral"};
constexpr const char* name_tag = "_chemical_name_systematic";
constexpr const char* author_tag = "_publ_author_name";
constexpr const char* last_page_tag = "_journal_page_last";
constexpr const char* z_tag = "_cell_formula_units_z";
constexpr const char* accession_tag = "_audit_creation_date";
constexpr const char* update_tag = "_audit_update_record";
constexpr const char* editor_code_tag = "_journal_coeditor_code";
// What follows these names the database or the archive.
constexpr char database_tags[] = "_database_code_";
constexpr char deposition_tags[] = "_database_code_depnum_";
constexpr const char* atom_tags[] = {"_atom_site_label", "_atom_site_fract_x", "_atom_site_fract_y",
                                     "_atom_site_fract_z"};
constexpr const char* bond_tags[] = {"_geom_bond_atom_site_label_1", "_geom_bond_atom_site_label_2",
                                     "_geom_bond_distance"};

std::vector<std::string> all_tags() {
    std::vector<std::string> tags{name_tag,      author_tag, last_page_tag,   z_tag,
                                  accession_tag, update_tag, editor_code_tag, database_tags};
    for (const TextRow& row : text_rows) tags.emplace_back(row.tag);
    const auto add = [&tags](const auto& more) {
        tags.insert(tags.end(), std::begin(more), std::end(more));
    };
    add(cell_tags);
    add(symbol_tags);
    add(hall_tags);
    add(number_tags);
    add(operation_tags);
    add(temperature_tags);
    add(r_factor_tags);
    add(synonym_tags);
    add(atom_tags);
    add(bond_tags);
    return tags;
}

// No group has more; gemmi's search for a group costs their square.
constexpr std::size_t most_operations = 192;
constexpr std::size_t longest_operation = 100;  // in characters

// No number of a crystal comes near; multiplied, it is still one.
constexpr double beyond_use = 1e30;

/// Items that say the same, those to be preferred first.
using Tags = std::span<const char* const>;

Tags just(const char* const& tag) { return {&tag, 1}; }

/// Finds the styles of a name, but takes codes that stand for no letter for plain text, which the
/// database's mark-up would leave out.
class WholeNameStyleFinder : public CifChemicalNameStyleFinder {
public:
    void greek(std::vector<GreekSlice>& out) const override {
        std::vector<GreekSlice> letters;
        CifChemicalNameStyleFinder::greek(letters);
        for (const GreekSlice& letter : letters) {
            if (letter.symbol() != TextItem::no_symbol) out.push_back(letter);
        }
    }
};

/// Fills an entry from one block.
class BlockReader {
public:
    explicit BlockReader(const CifBlock& block) : block_(block) {}

    CifEntry read() {
        read_texts();
        read_names();
        read_publication();
        read_dates();
        read_numbers_elsewhere();
        read_cell();
        read_space_group();
        read_numbers();
        read_atoms();
        for (const CifBlock::Repetition& repetition : block_.repetitions) {
            problems_.push_back({repetition.line, "data_" + block_.name + ": " + repetition.tag +
                                                      ": given again; the first value counts"});
        }
        return {block_.name, entry_, std::move(problems_)};
    }

private:
    const std::vector<CifValue>& values(const char* tag) const {
        static const std::vector<CifValue> none;
        const auto item = block_.items.find(tag);
        return item == block_.items.end() ? none : item->second;
    }

    /// The first value that is one, of the first of the tags that has any.
    const CifValue* first_value(Tags tags, const char*& tag_found) const {
        for (const char* tag : tags) {
            for (const CifValue& value : values(tag)) {
                tag_found = tag;
                if (!value.text.empty()) return &value;
            }
        }
        return nullptr;
    }
    std::string first_text(Tags tags) const {
        const char* tag = nullptr;
        const CifValue* const value = first_value(tags, tag);
        return value ? one_line(value->text) : "";
    }

    void add_problem(const CifValue& value, const char* tag, const std::string& what) {
        problems_.push_back({value.line, "data_" + block_.name + ": " + tag + ": " + what + " '" +
                                             one_line(value.text).substr(0, 60) + "'"});
    }

    std::optional<UncertainValue> number(Tags tags) {
        const char* tag = nullptr;
        const CifValue* const value = first_value(tags, tag);
        if (!value) return std::nullopt;
        const std::optional<UncertainValue> read = read_number(value->text);
        const bool is_usable = read && std::abs(read->value) < beyond_use;
        if (!is_usable) add_problem(*value, tag, "expected a number, not");
        return is_usable ? read : std::nullopt;
    }

    void read_texts() {
        for (const TextRow& row : text_rows) {
            std::string& field = row.field(*entry_);
            const std::string text = first_text(just(row.tag));
            if (field.empty() && !text.empty()) field = text + row.unit;
        }
        if (entry_->identifier.empty()) entry_->identifier = block_.name;
    }

    /// A name in the database's own mark-up; empty, with a problem, when it cannot be styled.
    std::string name(const CifValue& value, const char* tag) {
        TevoRichTextGenerator generator;
        try {
            return TextItem(make_handle<WholeNameStyleFinder>(), one_line(value.text))
                .mark_up_text(generator);
        } catch (const std::exception& error) {
            add_problem(value, tag, std::string(error.what()) + " in");
            return "";
        }
    }

    void read_names() {
        for (const CifValue& value : values(name_tag)) {
            if (entry_->chemical_info->compound_name.empty()) {
                entry_->chemical_info->compound_name = name(value, name_tag);
            }
        }
        for (const char* tag : synonym_tags) {
            for (const CifValue& value : values(tag)) {
                const std::string synonym = name(value, tag);
                if (!synonym.empty()) entry_->chemical_info->synonyms.push_back(synonym);
            }
        }
    }

    void read_publication() {
        Publication& article = *entry_->publication;
        article.journal = without_accents(article.journal);
        for (const CifValue& value : values(author_tag)) {
            const std::string author = initials_first(one_line(value.text));
            if (!author.empty()) article.authors.push_back(author);
        }
        const std::string last_page = first_text(just(last_page_tag));
        if (!article.page.empty() && !last_page.empty()) article.page += "-" + last_page;
    }

    void read_dates() {
        EditorsInfo& editors = *entry_->editors_info;
        const char* tag = nullptr;
        const CifValue* const created = first_value(just(accession_tag), tag);
        if (created) {
            const std::optional<Date> date = read_date(created->text);
            if (date) editors.accession_date = *date;
            if (!date) add_problem(*created, tag, "expected a date like 2004-07-09, not");
        }
        // The record has a line for each update, beginning with the date; the last line counts.
        const CifValue* const updated = first_value(just(update_tag), tag);
        std::istringstream lines(updated ? updated->text : "");
        for (std::string line; std::getline(lines, line);) {
            std::istringstream words(line);
            std::string first_word;
            words >> first_word;
            const std::optional<Date> date = read_date(first_word);
            if (date) editors.modification_date = *date;
        }
    }

    /// The numbers of the entry in journals, archives and databases.
    void read_numbers_elsewhere() {
        auto& depositions = entry_->deposition_info->depositions;
        for (const auto& [tag, found] : block_.items) {
            const bool deposition = tag.starts_with(deposition_tags);
            if (!tag.starts_with(database_tags)) continue;
            for (const CifValue& value : found) {
                const std::string number = one_line(value.text);
                if (number.empty()) continue;
                if (deposition) {
                    depositions.push_back({DepositionInfo::supplementary, number});
                } else {
                    add_cross_reference(tag.substr(std::size(database_tags) - 1), number);
                }
            }
        }
        const std::string editor_code = first_text(just(editor_code_tag));
        if (!editor_code.empty()) depositions.push_back({DepositionInfo::journal, editor_code});
        const std::string number = first_text(just(cod_tag));
        if (!number.empty()) add_cross_reference("cod", number);
    }

    void add_cross_reference(std::string database, const std::string& number) {
        for (char& c : database) {
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        }
        entry_->cross_reference_info->references.push_back(
            {DatabaseCrossReference::same_structure, database + ' ' + number});
    }

    void read_cell() {
        UncertainValue parameters[6];
        const char* lacking = nullptr;
        bool complete = true;
        for (std::size_t i = 0; i < 6; ++i) {
            const char* tag = nullptr;
            if (!lacking && !first_value(just(cell_tags[i]), tag)) lacking = cell_tags[i];
            const std::optional<UncertainValue> parameter = number(just(cell_tags[i]));
            complete = complete && parameter;
            if (parameter) parameters[i] = *parameter;
        }
        const char* tag = nullptr;
        const CifValue* const some = first_value(cell_tags, tag);
        if (some && lacking) {
            problems_.push_back(
                {some->line, "data_" + block_.name + ": the cell has no " + lacking});
        }
        if (!complete) return;
        const Cell cell{parameters[0],   parameters[1],   parameters[2],
                        {parameters[3]}, {parameters[4]}, {parameters[5]}};
        entry_->crystal_info->cell = cell;
        if (cell.volume() > 0) return;
        const CifValue& value = values(cell_tags[0]).front();
        problems_.push_back(
            {value.line, "data_" + block_.name + ": no cell has these edges and angles"});
    }

    const gemmi::SpaceGroup* find_space_group() {
        const std::optional<Cell>& cell = entry_->crystal_info->cell;
        const double alpha = cell ? cell->alpha.degrees.value : 0;
        const double gamma = cell ? cell->gamma.degrees.value : 0;
        const std::string symbol = first_text(symbol_tags);
        const gemmi::SpaceGroup* group = nullptr;
        // To gemmi some numbers are symbols too.
        if (!symbol.empty() && (symbol[0] < '0' || symbol[0] > '9')) {
            group = gemmi::find_spacegroup_by_name(symbol, alpha, gamma);
        }
        if (!group) group = find_by_hall_symbol();
        if (!group) group = find_by_operations();
        const std::optional<UncertainValue> number = read_number(first_text(number_tags));
        if (!group && number && number->value >= 1 && number->value <= 230) {
            group = gemmi::find_spacegroup_by_number(static_cast<int>(number->value));
        }
        return group;
    }

    /// An operation such as "-x,y+1/2,z"; throws where it is none. The sums that gemmi makes of
    /// long numbers would overflow.
    static gemmi::Op operation(const std::string& text) {
        std::size_t digits = 0;
        for (const char c : text) {
            digits = c >= '0' && c <= '9' ? digits + 1 : 0;
            if (digits > 2 || text.size() > longest_operation) {
                throw std::invalid_argument("no symmetry operation");
            }
        }
        return gemmi::parse_triplet(text);
    }

    // These two give no group where gemmi refuses the item, so that the next item is tried.

    const gemmi::SpaceGroup* find_by_hall_symbol() const {
        const std::string symbol = first_text(hall_tags);
        if (symbol.empty()) return nullptr;
        try {
            return gemmi::find_spacegroup_by_ops(gemmi::symops_from_hall(symbol.c_str()));
        } catch (const std::exception&) {
            return nullptr;
        }
    }

    const gemmi::SpaceGroup* find_by_operations() {
        const char* tag = operation_tags[0];
        if (values(tag).empty()) tag = operation_tags[1];
        const std::vector<CifValue>& found = values(tag);
        if (found.empty()) return nullptr;
        if (found.size() > most_operations) {
            problems_.push_back({found.front().line, "data_" + block_.name + ": " + tag + ": " +
                                                         std::to_string(found.size()) +
                                                         " operations, expected up to " +
                                                         std::to_string(most_operations)});
            return nullptr;
        }
        std::vector<gemmi::Op> operations;
        try {
            for (const CifValue& value : found) operations.push_back(operation(value.text));
            return gemmi::find_spacegroup_by_ops(gemmi::split_centering_vectors(operations));
        } catch (const std::exception&) {
            return nullptr;
        }
    }

    void read_space_group() {
        CrystalInfo& info = *entry_->crystal_info;
        const gemmi::SpaceGroup* const group = find_space_group();
        const char* tag = nullptr;
        const CifValue* const symbol = first_value(symbol_tags, tag);
        if (group) {
            info.spacegroup = {group->hm, group->number, group->centring_type()};
        } else if (symbol) {
            info.spacegroup.symbol = one_line(symbol->text);
            add_problem(*symbol, tag, "unknown space group");
        }
        if (info.cell && group) {
            info.reduced_cell = ReducedCell::of(*info.cell, info.spacegroup.centring);
        }
        const std::optional<UncertainValue> z = number(just(z_tag));
        if (!z) return;
        info.z = z->value;
        if (group) info.z_prime = z->value / group->operations().order();
    }

    void read_numbers() {
        ExperimentalInfo& experiment = *entry_->experimental_info;
        // "NOT MEASURED" and the like is what the author had to say.
        const std::string temperature = first_text(temperature_tags);
        experiment.temperature = read_number(temperature);
        if (!experiment.temperature) experiment.temperature_text = temperature;
        const std::optional<UncertainValue> r_factor = number(r_factor_tags);
        if (r_factor) experiment.r_factor = 100 * r_factor->value;
        read_average_sigma();
    }

    /// The mean uncertainty of the C-C bonds.
    void read_average_sigma() {
        const auto& first = values(bond_tags[0]);
        const auto& second = values(bond_tags[1]);
        const auto& lengths = values(bond_tags[2]);
        const std::size_t bonds = std::min({first.size(), second.size(), lengths.size()});
        double sum = 0;
        unsigned int count = 0;
        for (std::size_t i = 0; i < bonds; ++i) {
            if (!is_carbon(first[i].text) || !is_carbon(second[i].text)) continue;
            const std::optional<UncertainValue> length = read_number(lengths[i].text);
            if (!length || length->uncertainty == 0) continue;
            sum += length->uncertainty;
            ++count;
        }
        if (count > 0) entry_->experimental_info->average_sigma = UncertainValue{sum / count, 0, 4};
    }

    /// Whether a label is that of a carbon atom: C, and no second letter as in Cl.
    static bool is_carbon(const std::string& label) {
        return !label.empty() && label[0] == 'C' &&
               (label.size() == 1 || label[1] < 'a' || label[1] > 'z');
    }

    void read_atoms() {
        const auto& labels = values(atom_tags[0]);
        const std::vector<CifValue>* const axes[] = {&values(atom_tags[1]), &values(atom_tags[2]),
                                                     &values(atom_tags[3])};
        std::size_t atoms = labels.size();
        for (const auto* axis : axes) atoms = std::min(atoms, axis->size());
        for (std::size_t i = 0; i < atoms; ++i) {
            const auto x = read_number((*axes[0])[i].text);
            const auto y = read_number((*axes[1])[i].text);
            const auto z = read_number((*axes[2])[i].text);
            if (!x || !y || !z) continue;  // known to be there, but not where
            entry_->crystal_info->molecules.atoms.push_back(
                {labels[i].text, x->value, y->value, z->value});
        }
    }

    const CifBlock& block_;
    THandle<Entry> entry_ = make_handle<Entry>();
    std::vector<CifEntry::Problem> problems_;
};

}  // namespace

void for_each_cif_entry(const std::string& path, const std::function<void(CifEntry)>& take) {
    static const std::vector<std::string> tags = all_tags();
    for_each_cif_block(path, tags, [&](const CifBlock& block) { take(BlockReader(block).read()); });
}

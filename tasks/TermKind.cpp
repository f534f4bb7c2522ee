#include "tasks/TermKind.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "comparison/folding.h"
#include "comparison/journal_names.h"
#include "entries/PersonName.h"
#include "entries/read_whole.h"
#include "entries/space_group_symbol.h"
#include "tasks/AskedCell.h"
#include "tasks/FieldTerm.h"
#include "tasks/NumberRange.h"
#include "tasks/PlainTerm.h"
#include "tasks/View.h"
#include "tasks/nearest_word.h"
#include "tasks/row_named.h"
#include "text/Position.h"

namespace {

using Names = LMRFieldNames;
using Ranges = std::vector<StringSlice>;
using Made = std::unique_ptr<Term>;

std::vector<Field> fields_of(const TermKind& kind) {
    std::vector<Field> fields;
    for (const char* const label : kind.labels) fields.push_back(field_named(label));
    return fields;
}

void add_all(const SearchedText& text, Ranges& ranges) {
    ranges.emplace_back(0, length_of(text.shown()));
}

/// A plain term in some fields.
Made make_words(const TermKind& kind, const std::string& written, const std::string& value,
                const TermSettings& settings) {
    return std::make_unique<PlainTerm>(written, value, settings, fields_of(kind));
}

/// A name as it is written, or as entries have it: "Smith, Anne" as "A.Smith".
Made make_author(const TermKind& kind, const std::string& written, const std::string& value,
                 const TermSettings& settings) {
    const auto as_written =
        std::make_shared<PlainTerm>(written, value, settings, std::vector<Field>());
    const PersonName name = read_person_name(value);
    std::shared_ptr<PlainTerm> as_name;
    if (!name.doubtful && name.text != value) {
        as_name = std::make_shared<PlainTerm>(written, name.text, settings, std::vector<Field>());
    }
    return std::make_unique<FieldTerm>(written, fields_of(kind),
                                       [=](const SearchedText& text, Ranges& ranges) {
                                           as_written->find(text, ranges);
                                           if (ranges.empty() && as_name)
                                               as_name->find(text, ranges);
                                       });
}

Made make_journal(const TermKind& kind, const std::string& written, const std::string& value,
                  const TermSettings& settings) {
    const auto name = std::make_shared<PlainTerm>(written, value, settings, std::vector<Field>());
    return std::make_unique<FieldTerm>(
        written, fields_of(kind), [name, value](const SearchedText& text, Ranges& ranges) {
            const std::string& journal = text.entry().entry->publication->journal;
            name->find(text, ranges);
            std::erase_if(ranges,
                          [&](const StringSlice& range) { return range.to() > journal.size(); });
            // Or by its abbreviation.
            if (!ranges.empty() || !may_be_one_journal(value, journal)) return;
            if (text.shown().starts_with(journal)) ranges.emplace_back(0, length_of(journal));
        });
}

Made make_doi(const TermKind& kind, const std::string& written, const std::string& value,
              const TermSettings& settings) {
    const std::size_t begin = std::min(value.find("10."), value.size());
    return make_words(kind, written, begin < value.size() ? value.substr(begin) : value, settings);
}

Made make_formula(const TermKind& kind, const std::string& written, const std::string& value,
                  const TermSettings& /*settings*/) {
    if (elements_in(value).empty()) return nullptr;
    return std::make_unique<FieldTerm>(
        written, fields_of(kind), [value](const SearchedText& text, Ranges& ranges) {
            const Ranges places = places_of(elements_in(value), text.shown());
            ranges.insert(ranges.end(), places.begin(), places.end());
        });
}

Made make_group(const TermKind& kind, const std::string& written, const std::string& value,
                const TermSettings& /*settings*/) {
    constexpr int last_number = 230;
    const int number = read_whole<int>(value).value_or(number_of(find_space_group(value, 0, 0)));
    if (number < 1 || number > last_number) return nullptr;
    return std::make_unique<FieldTerm>(
        written, fields_of(kind), add_all, [number](const CifEntry& entry) {
            return entry.entry->crystal_info->spacegroup.number == number;
        });
}

std::array<double, 3> lengths_of(const Cell& cell) {
    return {cell.a.value, cell.b.value, cell.c.value};
}
std::array<double, 3> angles_of(const Cell& cell) {
    return {cell.alpha.degrees.value, cell.beta.degrees.value, cell.gamma.degrees.value};
}

bool is_near(const AskedCell& asked, const std::optional<Cell>& cell) {
    return cell && asked.is_near(lengths_of(*cell), angles_of(*cell));
}
bool is_near(const AskedCell& asked, const std::optional<ReducedCell>& cell) {
    return cell &&
           asked.is_near({cell->a, cell->b, cell->c}, {cell->alpha, cell->beta, cell->gamma});
}

Made make_cell(const TermKind& kind, const std::string& written, const std::string& value,
               const TermSettings& /*settings*/) {
    const std::optional<AskedCell> asked = AskedCell::read(value);
    if (!asked) return nullptr;
    const auto find = [cell = *asked](const SearchedText& text, Ranges& ranges) {
        const CrystalInfo& crystal = *text.entry().entry->crystal_info;
        const auto is = [&](Names::TextID id) { return text.field().id == id; };
        const bool is_angles = is(Names::cell_angles) || is(Names::reduced_cell_angles);
        if (is_angles && !cell.angles) return;
        const bool is_own = is(Names::cell_lengths) || is(Names::cell_angles);
        if (is_own ? is_near(cell, crystal.cell) : is_near(cell, crystal.reduced_cell)) {
            add_all(text, ranges);
        }
    };
    const auto may_be_of = [cell = *asked](const CifEntry& entry) {
        const CrystalInfo& crystal = *entry.entry->crystal_info;
        return is_near(cell, crystal.cell) || is_near(cell, crystal.reduced_cell);
    };
    return std::make_unique<FieldTerm>(written, fields_of(kind), find, may_be_of);
}

/// The first number of a text.
Made make_number(const TermKind& kind, const std::string& written, const std::string& value,
                 const TermSettings& /*settings*/) {
    const std::optional<NumberRange> range = NumberRange::read(value);
    if (!range) return nullptr;
    const auto find = [range = *range](const SearchedText& text, Ranges& ranges) {
        const std::vector<SearchedNumber> numbers = numbers_in(text.shown());
        if (!numbers.empty() && range.contains(numbers[0])) ranges.push_back(numbers[0].place);
    };
    return std::make_unique<FieldTerm>(written, fields_of(kind), find);
}

Made make_year(const TermKind& kind, const std::string& written, const std::string& value,
               const TermSettings& /*settings*/) {
    const std::optional<NumberRange> range = NumberRange::read(value);
    if (!range) return nullptr;
    const auto may_be_of = [range = *range](const CifEntry& entry) {
        const std::string& year = entry.entry->publication->year;
        const std::optional<SearchedNumber> number = whole_number(year);
        return number && range.contains(*number);
    };
    const auto find = [](const SearchedText& text, Ranges& ranges) {
        const std::string& year = text.entry().entry->publication->year;
        for (const SearchedNumber& number : numbers_in(text.shown())) {
            if (number.whole != year || !ranges.empty()) continue;
            ranges.push_back(number.place);
        }
    };
    return std::make_unique<FieldTerm>(written, fields_of(kind), find, may_be_of);
}

constexpr const char* authors[] = {"Author(s)"};
constexpr const char* reference[] = {"Literature Reference"};
constexpr const char* title[] = {"Title"};
constexpr const char* names[] = {"Compound Name", "Synonym"};
constexpr const char* doi[] = {"DOI"};
constexpr const char* formula[] = {"Formula"};
constexpr const char* group[] = {"Space Group"};
constexpr const char* cells[] = {"Cell Lengths", "Cell Angles", "Reduced Cell Lengths",
                                 "Reduced Cell Angles"};
constexpr const char* volume[] = {"Cell Volume"};
constexpr const char* temperature[] = {"Temperature (K)"};
constexpr const char* density[] = {"Density (author)", "Density (KOVR)", "Measured Density"};
constexpr const char* r_factor[] = {"R-Factor (%)"};
constexpr const char* wr_factor[] = {"wR-Factor (%)"};
constexpr const char* weight[] = {"Formula Weight"};
constexpr const char* z[] = {"Z, Z'"};
constexpr const char* wavelength[] = {"Wavelength"};

constexpr TermKind kinds[] = {
    {"author", "NAME", "an author: cisarova, 'Smith, A. B.'", authors, make_author},
    {"journal", "NAME", "a part of the journal's name, or an abbreviation", reference,
     make_journal},
    {"year", "YEAR or FROM-TO", "when the article appeared", reference, make_year},
    {"title", "WORDS", "a part of the article's title", title, make_words},
    {"doi", "DOI", "a part of the article's DOI", doi, make_doi},
    {"name", "WORDS", "a part of the compound's name or of a synonym", names, make_words},
    {"formula", "ELEMENTS", "these elements in these numbers, others aside: C22H20", formula,
     make_formula},
    {"group", "SYMBOL or NUMBER", "the space group in any notation and setting: P21/n, 14", group,
     make_group},
    {"cell", "A,B,C[,ALPHA,BETA,GAMMA][~TOLERANCE]",
     "edges of the cell or the reduced one in any order, or all six; ~0.05 in \xC3\x85 and "
     "degrees, "
     "~2% of each, 1% unless given",
     cells, make_cell},
    {"volume", "FROM-TO",
     "the cell's volume in \xC3\x85\xC2\xB3; as all ranges also FROM-, -TO or "
     "one number, which stands for more digits: 1543.2",
     volume, make_number},
    {"temperature", "FROM-TO", "in K", temperature, make_number},
    {"density", "FROM-TO", "in g/cm\xC2\xB3", density, make_number},
    {"r", "FROM-TO", "the R factor in per cent", r_factor, make_number},
    {"wr", "FROM-TO", "the weighted R factor in per cent", wr_factor, make_number},
    {"weight", "FROM-TO", "the formula weight", weight, make_number},
    {"z", "FROM-TO", "formula units in the cell", z, make_number},
    {"wavelength", "FROM-TO", "in \xC3\x85", wavelength, make_number},
};

std::string_view before_colon(std::string_view written) {
    const std::size_t colon = written.find(':');
    return colon == written.npos ? std::string_view() : written.substr(0, colon);
}

}  // namespace

std::span<const TermKind> term_kinds() { return kinds; }

std::unique_ptr<Term> make_term(const std::string& written, const TermSettings& settings) {
    const std::string_view name = before_colon(written);
    const TermKind* const kind = name.empty() ? nullptr : row_named(term_kinds(), name);
    const std::string value = kind ? written.substr(name.size() + 1) : written;
    // Other blanks, and what nobody sees, are folded away.
    if (folded(value, settings.folding).find_first_not_of(" \t\r\n") == std::string::npos) {
        throw BadTerm("'" + written + "' is no term: nothing is asked for");
    }
    if (!kind) return std::make_unique<PlainTerm>(written, written, settings);
    std::unique_ptr<Term> term = kind->make(*kind, written, value, settings);
    if (term) return term;
    throw BadTerm("'" + written + "' is no term; expected " + kind->name + ":" + kind->value);
}

std::string_view nearest_term_kind(std::string_view written) {
    const std::string_view name = before_colon(written);
    if (name.empty()) return {};
    std::vector<std::string_view> known;
    for (const TermKind& kind : term_kinds()) known.emplace_back(kind.name);
    const std::string_view nearest = nearest_word(name, known);
    return nearest == name ? std::string_view() : nearest;
}

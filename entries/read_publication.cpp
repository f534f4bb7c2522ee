#include <algorithm>
#include <sstream>

#include "entries/BlockReader.h"
#include "entries/PersonName.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/field_items.h"
#include "fields/LMRFieldNames.h"

namespace {

void add_cross_reference(CrystalStructureDatabaseEntry& entry, std::string database,
                         const std::string& number) {
    for (char& c : database) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    entry.cross_reference_info->references.push_back(
        {DatabaseCrossReference::same_structure, database + ' ' + number});
}

/// A reference that lacks a part would show the signs around it: it gets a text of its own, which
/// looks like the others: "Acta Cryst. C (2001), 12-15" with the journal in italics.
void add_incomplete_reference(BlockReader& block, const Publication& article) {
    if (!article.journal.empty() && !article.volume.empty() && !article.year.empty() &&
        !article.page.empty()) {
        return;
    }
    const FieldItems& field = items_of(LMRFieldNames::literature_reference);
    FieldForm::Parts parts(field.parts.size());
    parts[reference_volume] = article.volume;
    parts[reference_year] = article.year;
    parts[first_page_of_reference] = article.page;
    parts[coded_journal_of_reference] = block.first_text(just(cif_tags::journal));
    std::string text = field.form.text_of(parts);
    if (text.empty()) return;
    block.add_text(
        {LMRFieldNames::text(LMRFieldNames::literature_reference), "cif-text", std::move(text)});
}

}  // namespace

void read_publication(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    Publication& article = *entry.publication;
    const CifItem* const authors = block.item(cif_tags::author);
    std::size_t row = 0;
    for (std::string& author : block.texts(cif_tags::author)) {
        const BlockReader::Value value{authors, std::move(author), row++};
        if (value.text.empty()) continue;
        const PersonName name = read_person_name(block.decoded(value));
        if (name.doubtful) {
            block
                .add_problem(value, "author-unclear",
                             "given names and surname cannot be told apart in")
                .level = Problem::Level::note;
        }
        if (!name.text.empty()) article.authors.push_back(name.text);
    }
    const std::string last_page = block.first_text(just(cif_tags::last_page));
    if (!article.page.empty() && !last_page.empty() && last_page != article.page) {
        article.page.append("-").append(last_page);
    }
    add_incomplete_reference(block, article);
}

void read_dates(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    EditorsInfo& editors = *entry.editors_info;
    const BlockReader::Value created = block.first_value(just(cif_tags::accession));
    if (created) {
        const std::optional<Date> date = read_date(created.text);
        if (date) editors.accession_date = *date;
        if (!date) block.add_unexpected(created, "not-a-date", "a date like 2004-07-09");
    }
    // The record has a line for each update, beginning with the date; the last line counts.
    std::istringstream lines(block.first_value(just(cif_tags::update)).text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string first_word;
        words >> first_word;
        const std::optional<Date> date = read_date(first_word);
        if (date) editors.modification_date = *date;
    }
}

void read_numbers_elsewhere(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    auto& depositions = entry.deposition_info->depositions;
    for (const CifItem* item : block.items(cif_tags::database_prefix)) {
        const std::string number = one_line((*item)[0].text());
        if (number.empty()) continue;
        std::string tag = in_lower_case(item->tag());
        std::replace(tag.begin(), tag.end(), '.', '_');
        if (tag.starts_with(cif_tags::deposition_prefix)) {
            depositions.push_back({DepositionInfo::supplementary, number});
        } else if (number != entry.identifier) {
            add_cross_reference(entry, tag.substr(cif_tags::database_prefix.size()), number);
        }
    }
    const std::string editor_code = block.first_text(just(cif_tags::editor_code));
    if (!editor_code.empty()) depositions.push_back({DepositionInfo::journal, editor_code});
}

#include <algorithm>
#include <optional>
#include <string>

#include "checks/CheckedEntry.h"
#include "checks/Journal.h"
#include "checks/doi.h"
#include "checks/pages.h"
#include "checks/people.h"
#include "entries/CodedText.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/read_whole.h"
#include "text/internal/ascii.h"

namespace {

using Value = CheckedEntry::Value;

constexpr std::string_view first_page_tag = "_journal_page_first";
constexpr std::string_view year_tag = "_journal_year";
constexpr std::string_view volume_tag = "_journal_volume";
constexpr std::string_view doi_tags[] = {"_journal_paper_doi", "_journal_article_doi",
                                         "_citation_doi"};

std::string decoded(const std::string& text) {
    return CodedText::may_hold_codes(text) ? CodedText(text).unicode() : text;
}

void check_people(CheckedEntry& entry) {
    const std::vector<Value> values = entry.all(cif_tags::author);
    if (values.size() < 2) return;
    std::vector<std::string> names;
    names.reserve(values.size());
    for (const Value& value : values) names.push_back(decoded(value.text));
    for (const RepeatedPerson& person : repeated_people(names)) {
        const Value& before = values[person.before];
        std::string expected = "another person than \"";
        expected.append(before.text).append("\" before");
        entry.add(person.is_sure ? "author-repeated" : "author-alike", values[person.index],
                  expected);
    }
}

void check_pages(CheckedEntry& entry) {
    const Value first = entry.first(first_page_tag);
    const Value last = entry.first(cif_tags::last_page);
    if (!first) return;
    if (!last) {  // all pages may stand in one value
        const std::size_t dash = first.text.find('-');
        if (dash == std::string::npos) return;
        const std::string_view pages = first.text;
        if (page_order(pages.substr(0, dash), pages.substr(dash + 1)) == PageOrder::reversed) {
            entry.add("pages-reversed", first, "the first page before the last");
        }
        return;
    }
    switch (page_order(first.text, last.text)) {
        case PageOrder::reversed:
            entry.add("pages-reversed", last, "a page behind the first, " + first.text);
            break;
        case PageOrder::unlike:
            entry.add("pages-unlike", last, "a page such as the first, " + first.text);
            break;
        case PageOrder::unknown:
        case PageOrder::right:
            break;
    }
}

/// The year that four digits are.
std::optional<int> four_digits(std::string_view text) {
    constexpr std::size_t digits = 4;
    const bool are_digits = std::all_of(text.begin(), text.end(), is_ascii_digit);
    return text.size() == digits && are_digits ? read_whole<int>(text) : std::nullopt;
}

void check_year(CheckedEntry& entry) {
    constexpr int first_year = 1890, last_year = 2100;
    constexpr int longest_wait = 5;
    const Value value = entry.first(year_tag);
    if (!value) return;
    const std::optional<int> year = four_digits(value.text);
    if (!year || *year < first_year || *year > last_year) {
        entry.add("year-invalid", value, "a year from 1890 to 2100, in four digits");
        return;
    }
    const Date& made = entry.entry().entry->editors_info->accession_date;
    if (made.is_null() || *year <= made.year + longest_wait) return;
    entry.add("year-late", value, "a year near " + std::to_string(made.year));
}

void check_volume(CheckedEntry& entry, const Journal* journal) {
    const Value volume = entry.first(volume_tag);
    if (!volume || !four_digits(volume.text)) return;
    if (volume.text != entry.first(year_tag).text) return;
    if (journal && journal->counts_years) return;
    entry.add("volume-is-year", volume, "the number of a volume");
}

/// The text with the word, which stands in it once whatever its case, replaced.
std::optional<std::string> with_word(const std::string& text, const std::string& wrong,
                                     const std::string& right) {
    const std::string lower = in_lower_case(text);
    const std::size_t place = lower.find(wrong);
    if (place == std::string::npos || lower.find(wrong, place + 1) != std::string::npos) {
        return std::nullopt;
    }
    const char* const first = &text[place];
    const bool is_capital = *first >= 'A' && *first <= 'Z';
    const bool all_capitals = first[1] >= 'A' && first[1] <= 'Z';
    std::string word = right;
    for (char& c : word) {
        if (all_capitals || (is_capital && &c == word.data())) c = static_cast<char>(c - 'a' + 'A');
    }
    return text.substr(0, place) + word + text.substr(place + wrong.size());
}

/// The journal that the entry names, if it is known.
const Journal* check_journal(CheckedEntry& entry) {
    constexpr std::string_view entity = "&amp;";
    const Value value = entry.first(cif_tags::journal);
    if (!value) return nullptr;
    std::string name = decoded(value.text);
    const std::size_t ampersand = name.find(entity);
    if (ampersand != std::string::npos) name.erase(ampersand + 1, entity.size() - 1);
    const JournalMatch match = find_journal(name);
    if (match.wrong_word.empty()) return match.journal;
    CheckFinding& finding = entry.add("journal-misspelt", value, std::string(match.spelling));
    const auto mended = with_word(value.text, match.wrong_word, match.right_word);
    if (mended) finding.repair = entry.replaced(value, *mended);
    return match.journal;
}

void check_doi(CheckedEntry& entry) {
    for (const std::string_view tag : doi_tags) {
        for (const Value& value : entry.all(tag)) {
            const DoiReading reading = read_doi(value.text);
            if (reading.state == DoiReading::none) {
                entry.add("doi-malformed", value, "\"10.\", four digits or more, \"/\" and a text");
            } else if (reading.state == DoiReading::decorated) {
                CheckFinding& finding = entry.add("doi-decorated", value, reading.doi);
                finding.repair = entry.replaced(value, reading.doi);
            }
        }
    }
}

}  // namespace

void check_publication(CheckedEntry& entry) {
    check_people(entry);
    check_pages(entry);
    check_year(entry);
    check_volume(entry, check_journal(entry));
    check_doi(entry);
}

#include "tasks/EntryFinder.h"

#include <algorithm>
#include <utility>

#include "entries/pass_on_bad_alloc.h"
#include "finders/TextSearchStyleFinder.h"
#include "tasks/FoundRanges.h"
#include "tasks/OrderedSearch.h"
#include "text/Position.h"

/// What was found in a field.
struct EntryFinder::FoundField {
    const Field* field;
    FieldText text;
    bool is_whole_text;  // of one match
    std::vector<std::size_t> terms;
    std::vector<FieldMatch> matches;

    /// With the matches highlighted.
    EntryField styled() && {
        std::vector<StringSlice> places;
        for (const FieldMatch& match : matches) places.push_back(match.place);
        const auto search =
            make_handle<OrderedSearch>(make_handle<FoundRanges>(std::move(places), is_whole_text));
        const auto finder = make_handle<TextSearchStyleFinder>(search, text.source->make_finder());
        return {field->label, field->group, {finder, text.text}, std::move(matches)};
    }
};

namespace {

/// A group's symbol is told whole, for bars are not shown by characters.
std::string what_is_at(const SearchedText& text, const StringSlice& shown) {
    const std::string& symbol = text.entry().entry->crystal_info->spacegroup.symbol;
    const bool is_group = text.field().id == LMRFieldNames::space_group && !symbol.empty();
    return is_group ? symbol : text.shown().substr(shown.from(), shown.length());
}

}  // namespace

EntryFinder::EntryFinder(std::span<const Field> wanted, Terms terms, const Folding& folding)
    : terms_(std::move(terms)), folding_(folding) {
    for (const Field& field : wanted) add(field);
    for (const auto& term : terms_) {
        for (const Field& field : term->own_fields()) add(field);
    }
}

/// Adds a field into which some term looks, once.
void EntryFinder::add(const Field& field) {
    const auto is_same = [&](const SearchedField& other) {
        return other.field.label == field.label;
    };
    if (std::any_of(fields_.begin(), fields_.end(), is_same)) return;
    SearchedField added{field, {}};
    for (std::size_t i = 0; i < terms_.size(); ++i) {
        if (terms_[i]->may_stand_in(field)) added.terms.push_back(i);
    }
    if (!added.terms.empty()) fields_.push_back(std::move(added));
}

bool EntryFinder::may_be_in(const CifEntry& entry) const {
    return std::all_of(terms_.begin(), terms_.end(),
                       [&](const auto& term) { return term->may_be_of(entry); });
}

std::optional<EntryFinder::FoundField> EntryFinder::found_in(const CifEntry& entry,
                                                             const SearchedField& searched) const {
    const auto may_be_found = [&](auto may_find) {
        return std::any_of(searched.terms.begin(), searched.terms.end(),
                           [&](std::size_t i) { return may_find(*terms_[i]); });
    };
    const Field& field = searched.field;
    if (!may_be_found([&](const Term& term) { return term.may_stand_in(entry, field); })) {
        return std::nullopt;
    }
    const SearchedText text(entry, field, folding_);
    const std::string* const skeleton = text.skeleton();
    const bool may_stand =
        !skeleton || may_be_found([&](const Term& term) { return term.may_stand_on(*skeleton); });
    if (text.text().text.empty() || !may_stand) return std::nullopt;
    FoundField found{&searched.field, {}, false, {}, {}};
    std::vector<StringSlice> ranges;
    for (const std::size_t i : searched.terms) {
        ranges.clear();
        terms_[i]->find(text, ranges);
        if (!ranges.empty()) found.terms.push_back(i);
        for (const StringSlice& range : ranges) {
            if (range.length() == text.shown().size()) found.is_whole_text = true;
            found.matches.push_back(
                {terms_[i]->written(), what_is_at(text, range), text.in_item(range)});
        }
    }
    if (found.matches.empty()) return std::nullopt;
    found.text = text.text();
    return found;
}

/// The fields in which a term is; none where not each is in some.
std::vector<EntryFinder::FoundField> EntryFinder::found_fields(
    const CifEntry& entry, std::vector<Problem>& problems) const {
    std::vector<FoundField> all;
    std::vector<bool> is_found(terms_.size());
    for (const SearchedField& field : fields_) {
        try {
            std::optional<FoundField> found = found_in(entry, field);
            if (!found) continue;
            for (const std::size_t term : found->terms) is_found[term] = true;
            all.push_back(std::move(*found));
        } catch (const std::exception& error) {
            pass_on_bad_alloc(error);
            problems.push_back(problem_of(entry, field.field, error));
        }
    }
    if (std::find(is_found.begin(), is_found.end(), false) != is_found.end()) all.clear();
    return all;
}

EntryFields EntryFinder::find(const CifEntry& entry) const {
    EntryFields found;
    if (!may_be_in(entry)) return found;
    for (FoundField& field : found_fields(entry, found.problems)) {
        const Field& own = *field.field;
        try {
            found.fields.push_back(std::move(field).styled());
        } catch (const std::exception& error) {
            pass_on_bad_alloc(error);
            found.problems.push_back(problem_of(entry, own, error));
        }
    }
    return found;
}

bool EntryFinder::is_in(const CifEntry& entry) const {
    std::vector<Problem> problems;
    return may_be_in(entry) && !found_fields(entry, problems).empty();
}

std::optional<EntryField> EntryFinder::matches_in(const CifEntry& entry, const Field& field) const {
    for (const SearchedField& searched : fields_) {
        if (searched.field.label != field.label) continue;
        std::optional<FoundField> found = found_in(entry, searched);
        if (found) return std::move(*found).styled();
    }
    return std::nullopt;
}

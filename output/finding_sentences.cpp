#include "output/finding_sentences.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include "markup/Utf8.h"

namespace {

using Reason = Finding::Reason;

constexpr std::size_t most_clauses = 5;
constexpr std::size_t longest_quotation = 40;  // in characters

/// How a reason is told. In the clause {l} and {r} stand for the quoted characters of the left and
/// the right side, {L} and {R} for the same without quotes, {s} for the subject, {m} and {n} for
/// the numbers of either side, {+m} for a charge and {mth} for a place.
struct Row {
    Reason reason;
    const char* noun;    ///< What one side alone has: "blank left out".
    const char* clause;  ///< Where both sides have something, or the reason says it all.
};

constexpr Row rows[] = {
    {Reason::insertion, "", "{l} against {r}"},
    {Reason::deletion, "", "{l} against {r}"},
    {Reason::replacement, "", "{l} against {r}"},
    {Reason::letter_case, "", "{l} against {r} in case"},
    {Reason::first_letter_case, "", "{l} against {r} in case"},
    {Reason::accent, "", "{l} has another accent than {r}"},
    {Reason::dash, "dash", "{l} is another dash than {r}"},
    {Reason::apostrophe, "apostrophe", "{l} is another apostrophe than {r}"},
    {Reason::greek, "", "{l} is written {r}"},
    {Reason::blank, "blank", "other blanks"},
    {Reason::punctuation, "", "{l} against {r}"},
    {Reason::script, "", "{l} is raised or lowered otherwise"},
    {Reason::coding, "", "{l} is coded otherwise"},
    {Reason::number_within_limit, "", "{L} against {R}{limit}"},
    {Reason::number_beyond_limit, "", "{L} against {R}{limit}"},
    {Reason::number_added, "", "{R} added"},
    {Reason::number_missing, "", "{L} left out"},
    {Reason::element, "", "{s} {m} against {n}"},
    {Reason::element_order, "", "the same in another order"},
    {Reason::moiety_against_sum, "", "moieties against a sum of the same composition"},
    {Reason::charge, "", "charge of {s} {+m} against {+n}"},
    {Reason::multiplier, "", "{m} {s} against {n}"},
    {Reason::author_form, "", "{L} is written {R}"},
    {Reason::author_particles, "", "{L} has another surname than {R}"},
    {Reason::author_initials, "", "{L} has more or fewer initials than {R}"},
    {Reason::author_contradicted, "", "{L} has other initials or another suffix than {R}"},
    {Reason::author_moved, "", "{s} moved from {mth} to {nth} place"},
    {Reason::author_added, "", "{s} added in {nth} place"},
    {Reason::author_missing, "", "{s} left out of {mth} place"},
    {Reason::journal_form, "journal", "{L} is written {R}"},
    {Reason::journal, "journal", "journal {L} against {R}"},
    {Reason::volume, "volume", "volume {L} against {R}"},
    {Reason::year, "year", "year {L} against {R}"},
    {Reason::first_page, "first page", "first page {L} against {R}"},
    {Reason::last_page, "last page", "last page {L} against {R}"},
    {Reason::group_notation, "", "{L} is written {R}"},
    {Reason::group_setting, "", "{L} is set otherwise in {R}"},
    {Reason::group, "", "{L} against {R}"},
};

constexpr bool rows_are_in_value_order() {
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        if (rows[i].reason != static_cast<Reason>(i)) return false;
    }
    return std::size(rows) == Finding::reasons;
}
static_assert(rows_are_in_value_order(), "every reason has one row");

/// What stands there, cut where it is long, and on one line.
std::string excerpt(std::string_view text) {
    std::string cut;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == longest_quotation) return cut + "\u2026";
        const std::size_t size = first_character(text).size;
        cut += text.front() == '\n' ? std::string_view(" ") : text.substr(0, size);
        text.remove_prefix(size);
    }
    return cut;
}

std::string quoted(std::string_view text) { return '\'' + excerpt(text) + '\''; }

constexpr int all_digits = 10;

/// With so many digits at most.
std::string printed(double number, int digits) {
    char text[40];
    const auto end =
        std::to_chars(text, std::end(text), number, std::chars_format::general, digits).ptr;
    return {text, end};
}

/// What the text has in place of a count says it where it is no number, as in "n(H2 O)".
std::string count_of(const std::optional<double>& number, std::string_view text) {
    if (!number && !text.empty()) return excerpt(text);
    return number && *number != 0 ? printed(*number, all_digits) : "none";
}

/// "+1".
std::string charge_of(const std::optional<double>& number, std::string_view text) {
    const std::string charge = count_of(number, text);
    return number && *number > 0 ? '+' + charge : charge;
}

/// "2nd".
std::string place_of(const std::optional<double>& number) {
    if (!number) return "another";
    const long place = std::lround(*number);
    const bool is_teen = place / 10 % 10 == 1;
    const char* const endings[] = {"th", "st", "nd", "rd"};
    return std::to_string(place) + (place % 10 < 4 && !is_teen ? endings[place % 10] : "th");
}

/// What a finding of numbers adds: how far they are apart, and what is allowed.
std::string limit_of(const Finding& finding) {
    std::string text;
    const bool is_within = finding.reason == Reason::number_within_limit;
    if (finding.sigmas) {
        // Of many, none is worth a decimal.
        const int digits = *finding.sigmas < 100 ? 2 : all_digits;
        const double sigmas = *finding.sigmas < 100 ? *finding.sigmas : std::round(*finding.sigmas);
        text = ", " + printed(sigmas, digits) + " \u03C3 apart";
    } else if (finding.left_number && finding.right_number) {
        const double apart = std::abs(*finding.left_number - *finding.right_number);
        if (std::isfinite(apart)) text = ", " + printed(apart, 4) + " apart";
    }
    if (finding.limit && *finding.limit > 0 && !text.empty() && !(is_within && finding.sigmas)) {
        text.append(is_within ? ", within " : ", beyond ").append(printed(*finding.limit, 4));
        if (finding.sigmas) text += " \u03C3";
    }
    return text;
}

/// The pattern with `value(name)` for each name between braces.
template <class Value>
std::string filled(std::string_view pattern, Value value) {
    std::string text;
    while (true) {
        const std::size_t open = pattern.find('{');
        text += pattern.substr(0, open);
        if (open == std::string_view::npos) return text;
        const std::size_t close = pattern.find('}', open);
        text += value(pattern.substr(open + 1, close - open - 1));
        pattern.remove_prefix(close + 1);
    }
}

/// What stands for the names of the table.
std::string value_of(std::string_view name, const Finding& finding, std::string_view left,
                     std::string_view right) {
    const auto or_none = [](std::string_view text) {
        return text.empty() ? "none" : excerpt(text);
    };
    if (name == "l") return quoted(left);
    if (name == "r") return quoted(right);
    if (name == "L") return or_none(left);
    if (name == "R") return or_none(right);
    if (name == "s" && !finding.subject.empty()) return excerpt(finding.subject);
    if (name == "s") return or_none(left.empty() ? right : left);
    if (name == "m") return count_of(finding.left_number, left);
    if (name == "n") return count_of(finding.right_number, right);
    if (name == "+m") return charge_of(finding.left_number, left);
    if (name == "+n") return charge_of(finding.right_number, right);
    if (name == "mth") return place_of(finding.left_number);
    if (name == "nth") return place_of(finding.right_number);
    return limit_of(finding);
}

/// Whether what one side alone has is told as such.
bool tells_of_one_side(const Finding& finding) {
    const Finding::Kind kind = reason_of(finding).kind;
    return (kind == Finding::Kind::text || kind == Finding::Kind::reference) &&
           finding.left.empty() != finding.right.empty();
}

/// Without the commas and blanks of a list in which it stands.
std::string_view without_list_signs(std::string_view text) {
    constexpr std::string_view signs = " ,;";
    text.remove_prefix(std::min(text.find_first_not_of(signs), text.size()));
    return text.substr(0, text.find_last_not_of(signs) + 1);
}

bool is_blank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string one_sided(std::string_view noun, std::string_view text, const char* verb) {
    std::string clause(noun);
    if (noun.empty() || !is_blank(text)) {
        clause.append(clause.empty() ? "" : " ").append(quoted(text));
    }
    return clause.append(verb);
}

}  // namespace

std::string FindingSentences::clause(const Finding& finding) const {
    const std::string left_text = left_.shown_with_bars(finding.left);
    const std::string right_text = right_.shown_with_bars(finding.right);
    std::string_view left = left_text, right = right_text;
    if (reason_of(finding).kind == Finding::Kind::number) {
        left = without_list_signs(left);
        right = without_list_signs(right);
    }
    const bool is_coding = finding.reason == Reason::greek && left == right;
    const Reason reason = is_coding ? Reason::coding : finding.reason;
    const Row& row = rows[static_cast<std::size_t>(reason)];
    const std::string_view pattern = row.clause;
    std::string clause;
    if (finding.left_number && finding.right_number && !finding.subject.empty() &&
        reason_of(finding).kind == Finding::Kind::number) {
        clause = finding.subject + ": ";
    }
    if (!tells_of_one_side(finding)) {
        clause += filled(
            pattern, [&](std::string_view name) { return value_of(name, finding, left, right); });
    } else if (finding.left.empty()) {
        clause += one_sided(row.noun, right, " added");
    } else {
        clause += one_sided(row.noun, left, " left out");
    }
    return finding.is_coarse ? clause + " (less may differ)" : clause;
}

std::string FindingSentences::reasons(const std::vector<Finding>& findings) const {
    std::string text;
    std::size_t count = 0;
    for (const bool is_equivalent : {false, true}) {
        bool is_first = true;
        for (const Finding& finding : findings) {
            if (finding.is_equivalent != is_equivalent || ++count > most_clauses) continue;
            text.append(text.empty() ? "" : "; ");
            if (is_equivalent && is_first) text += "equivalent: ";
            is_first = false;
            text += clause(finding);
        }
    }
    if (count > most_clauses) text += " and " + std::to_string(count - most_clauses) + " more";
    return text;
}

// A host that stands on the standard library alone: all that the headers of host/ declare and the
// kernel calls.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <numbers>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "host/CrystalStructureDatabaseEntry.h"
#include "host/KOVRLog.h"
#include "host/Regex.h"
#include "host/RegexResults.h"
#include "host/THandleCommon.h"
#include "host/split.h"
#include "markup/EnumTextMapping.h"

void THandleCommon::null_handle_error() { throw std::logic_error("own_host: null handle"); }

int KOVRLog::level_ = 0;  // closed: the kernel's lines have level 3
int KOVRLog::minimum_level_ = 0;

std::ostream& KOVRLog::start_debug_line(int level) {
    return std::clog << "kernel " << level << ' ';
}
void KOVRLog::end_debug_line() { std::clog << '\n'; }

struct RegexResults::Match {
    std::smatch groups;
    unsigned int offset = 0;  // where the search began

    bool matched(unsigned int number) const {
        return number < groups.size() && groups[number].matched;
    }
    /// For a group that took part.
    const std::ssub_match& group(unsigned int number) const {
        if (!matched(number)) throw std::out_of_range("own_host: no such group");
        return groups[number];
    }
};

RegexResults::RegexResults() : match_(std::make_unique<Match>()) {}
RegexResults::RegexResults(RegexResults&& other) noexcept
    : match_(std::exchange(other.match_, std::make_unique<Match>())) {}
RegexResults& RegexResults::operator=(RegexResults&& other) noexcept {
    std::swap(match_, other.match_);
    other.match_->groups = {};
    return *this;
}
RegexResults::~RegexResults() = default;

unsigned int RegexResults::size() const { return static_cast<unsigned int>(match_->groups.size()); }
bool RegexResults::matched(unsigned int number) const { return match_->matched(number); }
std::string RegexResults::text(unsigned int number) const { return match_->group(number).str(); }
unsigned int RegexResults::start(unsigned int number) const {
    static_cast<void>(match_->group(number));
    return match_->offset + static_cast<unsigned int>(match_->groups.position(number));
}
unsigned int RegexResults::end(unsigned int number) const {
    return start(number) + static_cast<unsigned int>(match_->groups.length(number));
}

struct Regex::Program {
    std::regex expression;
};

namespace {

constexpr std::size_t longest_text = 10000;  // std::regex takes stack for each character

/// The pattern without blanks and comments, for want of a free-spacing syntax.
std::string compact(const std::string& pattern) {
    std::string result;
    std::istringstream lines(pattern);
    for (std::string line; std::getline(lines, line);) {
        line = line.substr(0, line.find('#'));
        std::erase(line, ' ');
        result += line;
    }
    return result;
}

std::regex compiled(const std::string& pattern) {
    try {
        return std::regex(pattern);
    } catch (const std::regex_error& error) {
        throw std::invalid_argument(error.what());
    }
}

}  // namespace

Regex::Regex(const std::string& pattern, unsigned int options)
    : program_(new Program{compiled(options == free_spacing ? compact(pattern) : pattern)}) {}
Regex::~Regex() = default;

bool Regex::search_from_position(const std::string& text, unsigned int position,
                                 RegexResults& results, unsigned int /*flags*/) const {
    results.match_->groups = {};
    results.match_->offset = position;
    if (position > text.size()) return false;
    if (text.size() > longest_text) throw std::runtime_error("own_host: text too long to search");
    const auto flags =
        position > 0 ? std::regex_constants::match_prev_avail : std::regex_constants::match_default;
    return std::regex_search(text.begin() + position, text.end(), results.match_->groups,
                             program_->expression, flags);
}

std::vector<std::string> split(const std::string& text, const std::string& separator,
                               StringFunctionParameters::BlankFieldControl control) {
    std::vector<std::string> pieces;
    for (std::size_t from = 0, end = 0; end != std::string::npos; from = end + separator.size()) {
        end = separator.empty() ? std::string::npos : text.find(separator, from);
        std::string piece = text.substr(from, end - from);
        const bool keep = control == StringFunctionParameters::keep_blank_fields;
        if (keep || !piece.empty()) pieces.push_back(std::move(piece));
    }
    return pieces;
}

double Cell::volume() const {
    const auto cosine = [](const Angle& angle) {
        return std::cos(angle.degrees.value * std::numbers::pi / 180);
    };
    const bool edges = a.value > 0 && b.value > 0 && c.value > 0;
    const double x = cosine(alpha), y = cosine(beta), z = cosine(gamma);
    const double square = 1 - x * x - y * y - z * z + 2 * x * y * z;
    return edges && square > 0 ? a.value * b.value * c.value * std::sqrt(square) : 0;
}

bool Spacegroup::sohncke() const {
    constexpr int ranges[][2] = {{1, 1},     {3, 5},     {16, 24},   {75, 80},
                                 {89, 98},   {143, 146}, {149, 155}, {168, 173},
                                 {177, 182}, {195, 199}, {207, 214}};
    return std::any_of(std::begin(ranges), std::end(ranges), [this](const int(&range)[2]) {
        return range[0] <= number && number <= range[1];
    });
}

std::ostream& operator<<(std::ostream& os, const UncertainValue& value) {
    os << value.value;
    if (value.uncertainty > 0) os << "±" << value.uncertainty;
    return os;
}

std::ostream& operator<<(std::ostream& os, const Date& date) {
    return os << date.day << '/' << date.month << '/' << date.year;
}

namespace {

using Depositions = EnumTextMapping<DepositionInfo::DepositionType>;
constexpr Depositions::Initialiser deposition_rows[] = {
    {DepositionInfo::kovr, "KOVR"},
    {DepositionInfo::supplementary, "Supplement"},
    {DepositionInfo::journal, "Journal"},
};
const Depositions deposition_texts(deposition_rows, std::size(deposition_rows));

using CrossReferences = EnumTextMapping<DatabaseCrossReference::CrossReferenceType>;
constexpr CrossReferences::Initialiser cross_reference_rows[] = {
    {DatabaseCrossReference::same_structure, "Same"},
    {DatabaseCrossReference::related_structure, "Related"},
    {DatabaseCrossReference::superseded, "Superseded"},
};
const CrossReferences cross_reference_texts(cross_reference_rows, std::size(cross_reference_rows));

}  // namespace

const Depositions& DepositionInfo::deposition_type_text() { return deposition_texts; }
const CrossReferences& DatabaseCrossReference::cross_reference_type_text() {
    return cross_reference_texts;
}

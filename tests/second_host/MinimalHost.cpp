// A host that stands on the standard library alone, as small as its declarations allow.
#include <algorithm>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "host/CrystalStructureDatabaseEntry.h"
#include "host/KOVRLog.h"
#include "host/Regex.h"
#include "host/RegexResults.h"
#include "host/THandleCommon.h"
#include "host/split.h"

void THandleCommon::null_handle_error() { throw std::logic_error("minimal host: null handle"); }

int KOVRLog::level_ = 0;
int KOVRLog::minimum_level_ = 0;

namespace {

std::ostringstream lost;

}  // namespace

std::ostream& KOVRLog::start_debug_line(int) { return lost; }
void KOVRLog::end_debug_line() {}

struct RegexResults::Match {
    std::smatch groups;
    unsigned int offset = 0;
};

RegexResults::RegexResults() : match_(std::make_unique<Match>()) {}
RegexResults::RegexResults(RegexResults&&) noexcept = default;
RegexResults& RegexResults::operator=(RegexResults&&) noexcept = default;
RegexResults::~RegexResults() = default;

unsigned int RegexResults::size() const { return static_cast<unsigned int>(match_->groups.size()); }
bool RegexResults::matched(unsigned int number) const { return match_->groups[number].matched; }
unsigned int RegexResults::start(unsigned int number) const {
    return match_->offset + static_cast<unsigned int>(match_->groups.position(number));
}
unsigned int RegexResults::end(unsigned int number) const {
    return start(number) + static_cast<unsigned int>(match_->groups.length(number));
}
std::string RegexResults::text(unsigned int number) const { return match_->groups.str(number); }

struct Regex::Program {
    std::regex expression;
};

namespace {

/// The pattern without blanks and comments, for want of a free-spacing syntax.
std::string compact(const std::string& pattern) {
    std::string result;
    std::istringstream lines(pattern);
    for (std::string line; std::getline(lines, line);) {
        line.erase(std::min(line.find('#'), line.size()));
        std::erase(line, ' ');
        result += line;
    }
    return result;
}

}  // namespace

Regex::Regex(const std::string& pattern, unsigned int options)
    : program_(new Program{std::regex(options == free_spacing ? compact(pattern) : pattern)}) {}
Regex::~Regex() = default;

bool Regex::search_from_position(const std::string& text, unsigned int position,
                                 RegexResults& results, unsigned int) const {
    results.match_->offset = position;
    return position <= text.size() &&
           std::regex_search(text.begin() + position, text.end(), results.match_->groups,
                             program_->expression);
}

std::vector<std::string> split(const std::string& text, const std::string&,
                               StringFunctionParameters::BlankFieldControl) {
    return {text};
}

// It knows no crystallography.
double Cell::volume() const { return 0; }
bool Spacegroup::sohncke() const { return false; }

std::ostream& operator<<(std::ostream& os, const UncertainValue& value) {
    return os << value.value;
}
std::ostream& operator<<(std::ostream& os, const Date& date) { return os << date.year; }

namespace {

constexpr EnumTextMapping<DepositionInfo::DepositionType>::Initialiser deposition_row = {
    DepositionInfo::kovr, "KOVR"};
const EnumTextMapping<DepositionInfo::DepositionType> deposition_texts(&deposition_row, 1);

using CrossReferences = EnumTextMapping<DatabaseCrossReference::CrossReferenceType>;
constexpr CrossReferences::Initialiser cross_reference_row = {
    DatabaseCrossReference::same_structure, "Same structure"};
const CrossReferences cross_reference_texts(&cross_reference_row, 1);

}  // namespace

const EnumTextMapping<DepositionInfo::DepositionType>& DepositionInfo::deposition_type_text() {
    return deposition_texts;
}
const CrossReferences& DatabaseCrossReference::cross_reference_type_text() {
    return cross_reference_texts;
}

#include "host/RegexResults.h"

#include <new>
#include <stdexcept>

#include "default_host/internal/RegexMatch.h"

void RegexResults::Match::prepare(unsigned int numbers) {
    if (capacity >= numbers) return;
    auto* const larger = pcre2_match_data_create(numbers, nullptr);
    if (!larger) throw std::bad_alloc();
    data.reset(larger);
    ends = pcre2_get_ovector_pointer(data.get());
    capacity = numbers;
}

RegexResults::RegexResults() = default;
RegexResults::RegexResults(RegexResults&& other) noexcept = default;
RegexResults& RegexResults::operator=(RegexResults&& other) noexcept = default;
RegexResults::~RegexResults() = default;

unsigned int RegexResults::size() const { return match_ ? match_->size : 0; }

bool RegexResults::matched(unsigned int number) const {
    return number < size() && match_->ends[2 * std::size_t{number}] != PCRE2_UNSET;
}

unsigned int RegexResults::start(unsigned int number) const {
    if (!matched(number)) throw std::out_of_range("RegexResults: no such match");
    return static_cast<unsigned int>(match_->ends[2 * std::size_t{number}]);
}

unsigned int RegexResults::end(unsigned int number) const {
    if (!matched(number)) throw std::out_of_range("RegexResults: no such match");
    return static_cast<unsigned int>(match_->ends[2 * std::size_t{number} + 1]);
}

std::string RegexResults::text(unsigned int number) const {
    const unsigned int from = start(number);
    return match_->text->substr(from, end(number) - from);
}

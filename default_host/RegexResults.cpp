#include "host/RegexResults.h"

#include <new>
#include <stdexcept>

#include "default_host/RegexMatch.h"

namespace {

const PCRE2_SIZE* ends(pcre2_match_data* data, unsigned int number) {
    return pcre2_get_ovector_pointer(data) + 2 * static_cast<std::size_t>(number);
}

}  // namespace

void RegexResults::Match::prepare(unsigned int numbers) {
    size = 0;
    if (data && pcre2_get_ovector_count(data.get()) >= numbers) return;
    data.reset(pcre2_match_data_create(numbers, nullptr));
    if (!data) throw std::bad_alloc();
}

RegexResults::RegexResults() = default;
RegexResults::RegexResults(RegexResults&& other) noexcept = default;
RegexResults& RegexResults::operator=(RegexResults&& other) noexcept = default;
RegexResults::~RegexResults() = default;

unsigned int RegexResults::size() const { return match_ ? match_->size : 0; }

bool RegexResults::matched(unsigned int number) const {
    return number < size() && ends(match_->data.get(), number)[0] != PCRE2_UNSET;
}

unsigned int RegexResults::start(unsigned int number) const {
    if (!matched(number)) throw std::out_of_range("RegexResults: no such match");
    return static_cast<unsigned int>(ends(match_->data.get(), number)[0]);
}

unsigned int RegexResults::end(unsigned int number) const {
    if (!matched(number)) throw std::out_of_range("RegexResults: no such match");
    return static_cast<unsigned int>(ends(match_->data.get(), number)[1]);
}

std::string RegexResults::text(unsigned int number) const {
    const unsigned int from = start(number);
    return match_->text->substr(from, end(number) - from);
}

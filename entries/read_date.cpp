#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "entries/cif_text.h"
#include "entries/read_whole.h"

namespace {

constexpr std::string_view months[] = {"january",   "february", "march",    "april",
                                       "may",       "june",     "july",     "august",
                                       "september", "october",  "november", "december"};
constexpr std::string_view week[] = {"monday", "tuesday",  "wednesday", "thursday",
                                     "friday", "saturday", "sunday"};

bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// Which of the names begins with the word, from 1, or 0; short forms have three letters or more.
template <std::size_t size>
int find_name(const std::string_view (&names)[size], const std::string& word) {
    if (word.size() < 3) return 0;
    const auto* const name = std::find_if(std::begin(names), std::end(names), [&](auto candidate) {
        return candidate.starts_with(word);
    });
    return name == std::end(names) ? 0 : static_cast<int>(name - std::begin(names)) + 1;
}

/// Takes the parts of a date, one after the other.
class DateParts {
public:
    /// False for what no date has.
    bool take(std::string_view part) {
        if (const std::optional<int> number = read_whole<int>(part)) {
            return is_digit(part[0]) && take_number(*number, part.size());
        }
        const std::string word = in_lower_case(part);
        const int month = find_name(months, word);
        if (month == 0) return find_name(week, word) != 0;
        if (date_.month != 0) return false;
        date_.month = month;
        return true;
    }

    bool has_year() const { return date_.year != 0; }

    /// Nothing where there is no such day, or where day and month may be either of two numbers.
    std::optional<Date> date() const {
        constexpr int days[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        Date date = date_;
        const bool has_name = date.month != 0;
        if (numbers_.size() != (has_name ? 1 : 2)) return std::nullopt;
        date.day = numbers_.back();
        if (!has_name) date.month = numbers_.front();
        if (!has_name && !year_first_ && date.day != date.month) {
            if (date.day <= 12 && date.month <= 12) return std::nullopt;
            if (date.month > 12) std::swap(date.day, date.month);
        }
        if (date.year < 1 || date.month < 1 || date.month > 12) return std::nullopt;
        if (date.day < 1 || date.day > days[date.month - 1]) return std::nullopt;
        return date;
    }

private:
    bool take_number(int number, std::size_t digits) {
        constexpr std::size_t digits_of_year = 4;
        if (digits < digits_of_year - 1) {
            numbers_.push_back(number);
            return numbers_.size() <= 2;
        }
        if (digits != digits_of_year || has_year()) return false;
        date_.year = number;
        year_first_ = numbers_.empty() && date_.month == 0;
        return true;
    }

    Date date_;
    bool year_first_ = false;
    std::vector<int> numbers_;  // of one or two digits
};

/// The word at the beginning of `text`, which is taken off with what separates it from the next.
std::string_view take_word(std::string_view& text, std::string_view separators) {
    const std::size_t first = std::min(text.find_first_not_of(separators), text.size());
    const std::size_t end = std::min(text.find_first_of(separators, first), text.size());
    const std::string_view word = text.substr(first, end - first);
    text.remove_prefix(end);
    return word;
}

}  // namespace

std::optional<Date> read_date(std::string_view text) {
    DateParts parts;
    bool after_time = false;
    for (std::string_view word; !(word = take_word(text, " \t\r\n,")).empty();) {
        const std::size_t time = word.find('T', 1);
        const bool has_time = time != std::string_view::npos && is_digit(word[time - 1]);
        if (has_time) word = word.substr(0, time);
        if (word.find(':') != std::string_view::npos) {
            if (parts.has_year()) break;  // only a time zone may follow
            after_time = true;
            continue;
        }
        // The name of a time zone, before the year.
        if (after_time && !is_digit(word[0])) continue;
        while (!word.empty()) {
            const std::string_view part = take_word(word, "-/.");
            if (!part.empty() && !parts.take(part)) return std::nullopt;
        }
        if (has_time) break;
    }
    return parts.date();
}

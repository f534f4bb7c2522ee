#include "entries/cif_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "entries/read_whole.h"
#include "entries/white_space.h"

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && is_white_space(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_white_space(text.back())) text.remove_suffix(1);
    return text;
}

/// 10 to the power of -`decimals`, which most numbers have few of.
double last_place(int decimals) {
    static const auto places = [] {
        std::array<double, 10> powers{};
        for (std::size_t i = 0; i < powers.size(); ++i) {
            powers[i] = std::pow(10.0, -static_cast<int>(i));
        }
        return powers;
    }();
    const auto index = static_cast<std::size_t>(decimals);
    return decimals >= 0 && index < places.size() ? places[index] : std::pow(10.0, -decimals);
}

/// The number that digits are. Few have more than an integer holds, which is read much faster.
std::optional<double> read_digits(std::string_view digits) {
    if (const std::optional<unsigned int> number = read_whole<unsigned int>(digits)) return *number;
    return read_whole<double>(digits);
}

/// Takes the text before the first `separator` off `text`, without its white space around.
std::string_view take_part(std::string_view& text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

/// Whether a word goes on in the next line; a dash between blanks is none.
bool ends_with_hyphen(std::string_view line) {
    return line.size() > 1 && line.back() == '-' && line[line.size() - 2] != ' ';
}

}  // namespace

std::string_view without_byte_order_mark(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.substr(0, mark.size()) == mark) bytes.remove_prefix(mark.size());
    return bytes;
}

std::string with_plain_line_ends(std::string_view text) {
    const std::size_t first = std::min(text.find('\r'), text.size());
    std::string plain(text.substr(0, first));
    plain.reserve(text.size());
    for (std::size_t i = first; i < text.size(); ++i) {
        if (text[i] != '\r') {
            plain += text[i];
        } else if (text.substr(i + 1, 1) != "\n") {
            plain += '\n';
        }
    }
    return plain;
}

std::string in_lower_case(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

std::string one_line(std::string_view text, bool is_name) {
    constexpr char fold = '\\';
    std::string_view rest = text;
    const bool folded = take_part(rest, '\n') == std::string_view(&fold, 1);
    if (folded) text = rest;
    std::string line;
    bool goes_on = true;
    while (!text.empty()) {
        std::string_view part = take_part(text, '\n');
        if (part.empty()) continue;
        const bool is_broken = ends_with_hyphen(line) || (is_name && part.front() == '-');
        if (!goes_on && !is_broken) line += ' ';
        goes_on = folded && part.back() == fold;
        if (goes_on) part.remove_suffix(1);
        line += part;
    }
    return line;
}

std::optional<UncertainValue> read_number(std::string_view text) {
    text = trimmed(text);
    std::string_view uncertainty;
    if (!text.empty() && text.back() == ')') {
        const std::size_t open = text.find('(');
        if (open == std::string_view::npos) return std::nullopt;
        uncertainty = text.substr(open + 1, text.size() - open - 2);
        text = text.substr(0, open);
        if (!std::all_of(uncertainty.begin(), uncertainty.end(), is_digit)) return std::nullopt;
    }
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    const std::optional<double> value = read_whole<double>(text);
    if (!value || !std::isfinite(*value)) return std::nullopt;

    const auto* const letter =
        std::find_if(text.begin(), text.end(), [](char c) { return c == 'e' || c == 'E'; });
    const auto exponent = static_cast<std::size_t>(letter - text.begin());
    const std::size_t point = std::min(text.find('.'), exponent);
    int decimals = point < exponent ? static_cast<int>(exponent - point - 1) : 0;
    if (exponent < text.size()) {
        std::string_view digits = text.substr(exponent + 1);
        if (digits.substr(0, 1) == "+") digits.remove_prefix(1);
        // No double needs a thousand; 0 may be written with any exponent.
        decimals -= std::clamp(read_whole<int>(digits).value_or(0), -1000, 1000);
    }
    UncertainValue result{*value, 0, std::max(decimals, 0)};
    if (!uncertainty.empty()) {
        const std::optional<double> last_places = read_digits(uncertainty);
        if (!last_places) return std::nullopt;
        result.uncertainty = *last_places * last_place(decimals);
    }
    return result;
}

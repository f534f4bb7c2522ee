#include "checks/check_temperatures.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include "checks/CheckedEntry.h"
#include "checks/in_decimals.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

constexpr std::string_view cell_tag = "_cell_measurement_temperature";
constexpr std::string_view measurement_tag = "_diffrn_ambient_temperature";
constexpr double zero_celsius = 273.15;  // in K

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// The first number of a text that may say more: 473 of "dec. 473(1)".
std::optional<double> first_number(std::string_view text) {
    std::size_t from = text.find_first_of("0123456789");
    if (from == std::string_view::npos) return std::nullopt;
    const std::size_t end = std::min(text.find_first_not_of("0123456789.", from), text.size());
    if (from > 0 && text[from - 1] == '.') --from;
    if (from > 0 && text[from - 1] == '-' && (from == 1 || !is_digit(text[from - 2]))) --from;
    const std::optional<UncertainValue> number = read_number(text.substr(from, end - from));
    if (!number) return std::nullopt;
    return number->value;
}

/// Whether a unit stands behind a number, with what is written for the sign of degrees.
bool has_unit(std::string_view text, char unit) {
    for (std::size_t at = text.find(unit); at != std::string_view::npos;
         at = text.find(unit, at + 1)) {
        const std::string_view behind = text.substr(at);
        const bool is_word = behind.size() > 1 && is_letter(behind[1]);
        if (is_word && !behind.starts_with("Celsius") && !behind.starts_with("Kelvin")) continue;
        std::string_view before = text.substr(0, at);
        for (const std::string_view sign :
             {" ", "\\%", "%", "\xC2\xB0", "\xC2\xBA", "^o^", "deg.", "degrees", "degree", "deg",
              "\\", "/", "o", "_", "^", " "}) {
            if (before.ends_with(sign)) before.remove_suffix(sign.size());
        }
        if (!before.empty() && (is_digit(before.back()) || before.back() == ')')) return true;
    }
    return false;
}

/// Whether it is said to be in degrees Celsius, and not in K besides.
bool is_in_celsius(std::string_view text) { return has_unit(text, 'C') && !has_unit(text, 'K'); }

bool is_room_temperature(double kelvin) { return kelvin >= 285 && kelvin <= 305; }

std::string in_kelvin(double celsius) {
    return in_decimals(celsius + zero_celsius, 0) + " K, if " + in_decimals(celsius, 0) +
           " degrees Celsius are meant";
}

/// Finds units of a temperature, and returns it where it is a number of K.
std::optional<UncertainValue> checked_temperature(CheckedEntry& entry, std::string_view tag) {
    const CheckedEntry::Value value = entry.first(tag);
    const std::optional<double> found = first_number(value.text);
    if (!found) return std::nullopt;  // "not measured"
    const std::optional<UncertainValue> number = read_number(value.text);
    const bool is_negative = number && number->value < 0 && number->value > -zero_celsius;
    if (is_in_celsius(value.text) || is_negative) {
        entry.add("temperature-in-celsius", value, in_kelvin(*found));
        return std::nullopt;
    }
    if (number) return number;
    CheckFinding& finding = entry.add("temperature-unclear", value, "a number of K");
    std::string_view written = value.text;
    if (written.ends_with('K')) written.remove_suffix(1);
    while (written.ends_with(' ')) written.remove_suffix(1);
    if (written.size() < value.text.size() && read_number(written)) {
        finding.repair = entry.replaced(value, std::string(written));
    }
    return std::nullopt;
}

void compare(CheckedEntry& entry, const UncertainValue& cell, const UncertainValue& measurement) {
    constexpr double near = 5;  // in K; a cell changes by less than its uncertainty
    const double difference = std::abs(cell.value - measurement.value);
    if (is_room_temperature(cell.value) && is_room_temperature(measurement.value)) return;
    const double allowed = 3 * std::hypot(cell.uncertainty, measurement.uncertainty);
    if (difference <= std::max(near, allowed)) return;
    constexpr double nearly_zero_celsius = 1.5;
    if (std::abs(difference - zero_celsius) <= nearly_zero_celsius) {
        const bool is_of_cell = cell.value < measurement.value;
        entry.add("temperature-in-celsius", entry.first(is_of_cell ? cell_tag : measurement_tag),
                  in_kelvin(std::min(cell.value, measurement.value)));
        return;
    }
    entry.add("cell-temperature-differs", entry.first(cell_tag),
              entry.first(measurement_tag).text + " K, as the intensities");
}

/// A crystal was measured below its melting point.
void check_melting_point(CheckedEntry& entry, double measured_at) {
    constexpr double near = 5;
    for (const std::string_view tag : {cif_tags::melting_point, cif_tags::melting_point_above}) {
        const CheckedEntry::Value value = entry.first(tag);
        const std::optional<double> found = first_number(value.text);
        if (!found) continue;
        const bool is_in_text = is_in_celsius(value.text);
        // What is below 1 K reading has warned of.
        const bool is_by_look =
            *found >= 1 && *found < measured_at - near && !has_unit(value.text, 'K');
        if (!is_in_text && !is_by_look) continue;
        std::string expected = in_kelvin(*found);
        if (!is_in_text) {
            expected.append("; the crystal was measured at ");
            expected.append(in_decimals(measured_at, 0)).append(" K");
        }
        entry.add("melting-point-in-celsius", value, std::move(expected));
    }
}

}  // namespace

void check_temperatures(CheckedEntry& entry) {
    const std::optional<UncertainValue> cell = checked_temperature(entry, cell_tag);
    const std::optional<UncertainValue> measurement = checked_temperature(entry, measurement_tag);
    if (cell && measurement) compare(entry, *cell, *measurement);
    const std::optional<UncertainValue>& at = measurement ? measurement : cell;
    check_melting_point(entry, at ? at->value : 0);
}

#include "tasks/AskedCell.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "entries/read_whole.h"

namespace {

/// The positive numbers between commas or blanks; none where there is anything else.
std::vector<double> positive_numbers(std::string_view text) {
    std::vector<double> numbers;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(", "), text.size()));
        if (text.empty()) return numbers;
        const std::size_t size = std::min(text.find_first_of(", "), text.size());
        const std::optional<double> number = read_whole<double>(text.substr(0, size));
        if (!number || !std::isfinite(*number) || *number <= 0) return {};
        numbers.push_back(*number);
        text.remove_prefix(size);
    }
}

}  // namespace

std::optional<AskedCell> AskedCell::read(std::string_view text) {
    AskedCell cell;
    const std::size_t tilde = std::min(text.find('~'), text.size());
    const std::vector<double> numbers = positive_numbers(text.substr(0, tilde));
    if (numbers.size() != 3 && numbers.size() != 6) return std::nullopt;
    std::copy_n(numbers.begin(), 3, cell.lengths.begin());
    if (numbers.size() == 6) std::copy_n(numbers.begin() + 3, 3, cell.angles.emplace().begin());
    if (tilde == text.size()) return cell;
    std::string_view tolerance = text.substr(tilde + 1);
    cell.is_relative = tolerance.ends_with('%');
    if (cell.is_relative) tolerance.remove_suffix(1);
    const std::optional<double> number = read_whole<double>(tolerance);
    if (!number || !std::isfinite(*number) || *number < 0) return std::nullopt;
    cell.tolerance = cell.is_relative ? *number / 100 : *number;
    return cell;
}

bool AskedCell::is_near(const std::array<double, 3>& other_lengths,
                        const std::array<double, 3>& other_angles) const {
    constexpr double rounding = 1e-9;
    const auto agrees = [this](double asked, double other) {
        const double most = is_relative ? tolerance * std::max(asked, other) : tolerance;
        return std::abs(asked - other) <= most + rounding;
    };
    std::array<std::size_t, 3> order = {0, 1, 2};
    do {
        bool all = true;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::size_t other = order[axis];
            all = all && agrees(lengths[axis], other_lengths[other]) &&
                  (!angles || agrees((*angles)[axis], other_angles[other]));
        }
        if (all) return true;
    } while (std::next_permutation(order.begin(), order.end()));
    return false;
}

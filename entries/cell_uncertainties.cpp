#include "entries/cell_uncertainties.h"

#include <algorithm>
#include <cmath>
#include <gemmi/cellred.hpp>
#include <gemmi/unitcell.hpp>
#include <stdexcept>

namespace {

using Parameters = std::array<double, 6>;  // edges, then angles

std::array<UncertainValue, 6> values_of(const Cell& cell) {
    return {cell.a, cell.b, cell.c, cell.alpha.degrees, cell.beta.degrees, cell.gamma.degrees};
}

/// Half the change of each result when a parameter goes from below to above its value by its
/// uncertainty, added up as squares. `compute` makes results of parameters.
template <std::size_t size, class Compute>
std::array<double, size> propagated(const Cell& cell, Compute compute) {
    const std::array<UncertainValue, 6> values = values_of(cell);
    std::array<double, size> squares{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto is_same = [&](std::size_t other) {
            return other / 3 == i / 3 && values[other].value == values[i].value &&
                   values[other].uncertainty == values[i].uncertainty;
        };
        const std::size_t first_of_kind = i - i % 3;
        bool is_known = false;
        for (std::size_t other = first_of_kind; other < i; ++other) is_known |= is_same(other);
        if (is_known || !(values[i].uncertainty > 0)) continue;
        Parameters below, above;
        for (std::size_t other = 0; other < values.size(); ++other) {
            const double shift = is_same(other) ? values[i].uncertainty : 0;
            below[other] = values[other].value - shift;
            above[other] = values[other].value + shift;
        }
        const std::array<double, size> from = compute(below), to = compute(above);
        for (std::size_t k = 0; k < size; ++k) squares[k] += std::pow((to[k] - from[k]) / 2, 2);
    }
    std::array<double, size> result{};
    for (std::size_t k = 0; k < size; ++k) {
        const double root = std::sqrt(squares[k]);
        result[k] = std::isfinite(root) ? root : 0;
    }
    return result;
}

gemmi::UnitCell unit_cell(const Parameters& p) { return {p[0], p[1], p[2], p[3], p[4], p[5]}; }

Parameters parameters_of(const Cell& cell) {
    Parameters parameters;
    const std::array<UncertainValue, 6> values = values_of(cell);
    std::transform(values.begin(), values.end(), parameters.begin(),
                   [](const UncertainValue& value) { return value.value; });
    return parameters;
}

double dot(const gemmi::Vec3& a, const gemmi::Vec3& b) { return a.dot(b); }

/// Edges and angles between three vectors.
Parameters parameters_between(const std::array<gemmi::Vec3, 3>& edges) {
    Parameters result;
    for (std::size_t i = 0; i < 3; ++i) {
        const gemmi::Vec3 &next = edges[(i + 1) % 3], &last = edges[(i + 2) % 3];
        result[i] = edges[i].length();
        const double cosine = dot(next, last) / (next.length() * last.length());
        result[i + 3] = gemmi::deg(std::acos(std::clamp(cosine, -1.0, 1.0)));
    }
    return result;
}

}  // namespace

double volume_uncertainty(const Cell& cell) {
    if (cell.volume() <= 0) return 0;
    const auto volume = [](const Parameters& parameters) {
        return std::array<double, 1>{unit_cell(parameters).volume};
    };
    return propagated<1>(cell, volume)[0];
}

std::array<double, 6> reduced_cell_uncertainties(const Cell& cell, char centring) {
    if (cell.volume() <= 0) return {};
    try {
        // The edges of the reduced cell stay these sums of the cell's edges.
        gemmi::GruberVector vector(unit_cell(parameters_of(cell)), centring, true);
        vector.niggli_reduce();
        const gemmi::Op::Rot sums = vector.change_of_basis->rot;
        const auto reduced = [&](const Parameters& parameters) {
            const gemmi::Mat33 edges = unit_cell(parameters).orth.mat;
            std::array<gemmi::Vec3, 3> result;
            for (std::size_t i = 0; i < 3; ++i) {
                result[i] = edges.multiply(gemmi::Vec3(sums[0][i], sums[1][i], sums[2][i])) /
                            static_cast<double>(gemmi::Op::DEN);
            }
            return parameters_between(result);
        };
        return propagated<6>(cell, reduced);
    } catch (const std::runtime_error&) {
        return {};  // no such centring
    }
}

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "comparison/Formula.h"

/// The elements of a moiety or a formula, by their symbols.
struct Composition {
    struct Element {
        std::string_view symbol;
        double total;             ///< In all places together.
        bool is_known;            ///< No unknowns are in it.
        StringSlice range;        ///< Of the first place.
        std::string_view before;  ///< The symbol that stands before that; may be empty.
    };

    /// Of the moiety taken once.
    explicit Composition(const Formula::Moiety& moiety);
    /// Of all moieties, as often as they are there.
    explicit Composition(const Formula& formula);

    /// Null where it is not there.
    const Element* find(std::string_view symbol) const;
    bool operator==(const Composition& other) const;

    /// What is the same for two of the same composition; nothing of the elements left out.
    std::string key(std::string_view left_out = {}) const;
    /// What is the same for two of the same elements.
    std::string symbols() const;

    std::vector<Element> elements;  ///< Each symbol once, in ascending order.

private:
    void add(const Formula::Moiety& moiety, const Formula::Count& multiplier);
    void merge();
};

/// Whether two totals are equal but for rounding.
bool are_equal_totals(double left, double right);

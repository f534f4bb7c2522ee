#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "comparison/Composition.h"
#include "comparison/Finding.h"
#include "comparison/Formula.h"

/// Compares moieties of two formulae, pair by pair, and keeps what it finds.
class MoietyComparison {
public:
    using Moiety = Formula::Moiety;
    using Count = Formula::Count;
    using Ranges = std::pair<StringSlice, StringSlice>;

    /// Of the texts of the formulae.
    MoietyComparison(std::string_view left, std::string_view right) : left_(left), right_(right) {}

    /// Compares numbers, charges and elements of two that are taken for the same.
    void compare(const Moiety& left, const Moiety& right);
    /// A moiety of one side alone; on the other it would stand in the place.
    /// @{
    void add_missing(const Moiety& left, unsigned int right_place);
    void add_added(unsigned int left_place, const Moiety& right);
    /// @}
    /// The totals of the elements, however the moieties are made.
    void compare(const Composition& left, const Composition& right);

    const std::vector<Finding>& findings() const { return findings_; }
    /// Where the same elements have another order.
    const std::optional<Ranges>& reordered() const { return reordered_; }
    /// Notes that what stands there has another order.
    void add_reordered(const Ranges& ranges);

private:
    void add(Finding::Reason reason, std::string_view subject, const Count& left,
             const Count& right);
    void compare(Finding::Reason reason, std::string_view subject, const Count& left,
                 const Count& right);
    void compare_charges(std::string_view subject, const Moiety& left, const Moiety& right);
    bool compare_tokens(const Moiety& left, const Moiety& right);
    void compare_orders(const Moiety& left, const Moiety& right);

    std::string_view left_, right_;
    std::vector<Finding> findings_;
    std::optional<Ranges> reordered_;
};

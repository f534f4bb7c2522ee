#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/WrittenNumber.h"

/// The numbers of one side of a comparison, and which number of the other side each belongs to.
class PairedNumbers {
public:
    /// No partner.
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    /// Without partners as yet. Refers to the text.
    explicit PairedNumbers(const ComparedText& text);

    /// Gives the numbers of both sides their partners: by their labels, those of one label in their
    /// order; where one side has more of these, those first that are written alike. O(n log n), and
    /// bounded where many of one label are written differently.
    static void pair(PairedNumbers& left, PairedNumbers& right);

    const ComparedText& text() const { return text_; }
    const std::vector<WrittenNumber>& numbers() const { return numbers_; }
    /// By the places of the numbers: that of the partner, or `none`.
    const std::vector<std::size_t>& partners() const { return partners_; }
    /// Whether each has one.
    bool are_paired() const;

    /// What is shown there.
    std::string_view shown(const StringSlice& place) const {
        return text_.shown().substr(place.from(), place.length());
    }
    /// The word before a number, without what stands between.
    std::string_view label(std::size_t number) const;
    /// From behind a number to the label of the next.
    StringSlice behind(std::size_t number) const;
    /// The first number in a range, or `none`. O(log n).
    std::size_t first_in(const StringSlice& range) const;

private:
    using Places = std::vector<std::size_t>;  // of numbers in their list

    static void pair(PairedNumbers& left, const Places& left_places, PairedNumbers& right,
                     const Places& right_places);

    const ComparedText& text_;
    std::vector<WrittenNumber> numbers_;
    Places partners_;
};

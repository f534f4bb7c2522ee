#include "comparison/PairedNumbers.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>

#include "comparison/EditScript.h"
#include "comparison/folding.h"
#include "text/Position.h"

PairedNumbers::PairedNumbers(const ComparedText& text)
    : text_(text), numbers_(numbers_of(text.shown())), partners_(numbers_.size(), none) {
    const std::vector<double>& known = text.uncertainties();
    for (std::size_t i = 0; i < std::min(known.size(), numbers_.size()); ++i) {
        if (numbers_[i].uncertainty == 0) numbers_[i].uncertainty = known[i];
    }
}

bool PairedNumbers::are_paired() const {
    return std::find(partners_.begin(), partners_.end(), none) == partners_.end();
}

std::string_view PairedNumbers::label(std::size_t number) const {
    const std::string_view label = shown(numbers_[number].label);
    return label.substr(0, label.find_last_not_of(" :=") + 1);
}

StringSlice PairedNumbers::behind(std::size_t number) const {
    const bool is_last = number + 1 == numbers_.size();
    const unsigned int from = numbers_[number].place.to();
    return {from, is_last ? length_of(text_.shown()) : numbers_[number + 1].label.from()};
}

std::size_t PairedNumbers::first_in(const StringSlice& range) const {
    const auto first = std::partition_point(
        numbers_.begin(), numbers_.end(),
        [&](const WrittenNumber& number) { return number.place.from() < range.from(); });
    const bool is_in = first != numbers_.end() && first->place.to() <= range.to();
    return is_in ? static_cast<std::size_t>(first - numbers_.begin()) : none;
}

void PairedNumbers::pair(PairedNumbers& left, PairedNumbers& right) {
    const auto by_label = [](const PairedNumbers& side) {
        std::map<std::string, Places> places;
        for (std::size_t i = 0; i < side.numbers_.size(); ++i) {
            const std::string_view label = side.label(i);
            places[label.empty() ? std::string() : folded(label, {})].push_back(i);
        }
        return places;
    };
    const std::map<std::string, Places> right_places = by_label(right);
    for (const auto& [label, places] : by_label(left)) {
        const auto same = right_places.find(label);
        if (same != right_places.end()) pair(left, places, right, same->second);
    }
}

void PairedNumbers::pair(PairedNumbers& left, const Places& left_places, PairedNumbers& right,
                         const Places& right_places) {
    std::vector<EditScript::Block> blocks;
    if (left_places.size() != right_places.size()) {
        constexpr std::size_t most_steps = 1'000'000;
        std::map<std::string_view, std::uint32_t> known;
        const auto keys_of = [&](const PairedNumbers& side, const Places& places) {
            std::vector<std::uint32_t> keys;
            for (const std::size_t place : places) {
                const auto next = static_cast<std::uint32_t>(known.size());
                keys.push_back(
                    known.emplace(side.shown(side.numbers_[place].place), next).first->second);
            }
            return keys;
        };
        blocks =
            EditScript(keys_of(left, left_places), keys_of(right, right_places), most_steps).blocks;
    }
    blocks.push_back(
        {left_places.size(), left_places.size(), right_places.size(), right_places.size()});
    std::size_t i = 0, j = 0;
    const auto pair_up_to = [&](std::size_t left_end, std::size_t right_end) {
        for (; i < left_end && j < right_end; ++i, ++j) {
            left.partners_[left_places[i]] = right_places[j];
            right.partners_[right_places[j]] = left_places[i];
        }
        i = left_end;
        j = right_end;
    };
    for (const EditScript::Block& block : blocks) {
        pair_up_to(block.left_from, block.right_from);
        pair_up_to(block.left_to, block.right_to);
    }
}

#include "finders/internal/GreekNameScanner.h"

#include <numeric>
#include <vector>

GreekNameScanner::GreekNameScanner() {
    const std::vector<std::string>& names = vocabulary_.tevo_chemical_name_greek();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string& name = names[i];
        lengths_[i] = static_cast<unsigned char>(name.size());
        symbols_[i] = vocabulary_.greek_symbol(name);
        indices_[static_cast<std::size_t>(symbols_[i])] = static_cast<unsigned char>(i);
        packed_names_[i] = {characters_at(name, 0),
                            characters_at(std::string(name.size(), '\xFF'), 0)};
        ++first_name_[static_cast<unsigned int>(name[0] - 'a') + 1];
        const auto first = static_cast<unsigned char>(name[0]);
        second_letters_[first] |= 1U << (name[1] & 31);
        third_letters_[first] |= name.size() > 2 ? 1U << (name[2] & 31) : ~0U;
    }
    std::partial_sum(first_name_.begin(), first_name_.end(), first_name_.begin());
}

std::size_t GreekNameScanner::next_candidate(std::string_view text, std::size_t position) const {
    if (position + 1 >= text.size()) return text.size();
    const char* const last = text.data() + text.size() - 1;
    for (const char* at = text.data() + position; at != last; ++at) {
        const auto first = static_cast<unsigned char>(at[0]);
        if ((second_letters_[first] >> (at[1] & 31) & 1) == 0) continue;
        if (at + 1 == last || (third_letters_[first] >> (at[2] & 31) & 1) != 0) {
            return static_cast<std::size_t>(at - text.data());
        }
    }
    return text.size();
}

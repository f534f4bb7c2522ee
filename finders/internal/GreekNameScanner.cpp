#include "finders/internal/GreekNameScanner.h"

#include <numeric>
#include <vector>

GreekNameScanner::GreekNameScanner() {
    const std::vector<std::string>& names = vocabulary_.tevo_chemical_name_greek();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string& name = names[i];
        symbols_[i] = vocabulary_.greek_symbol(name);
        packed_names_[i] = {characters_at(name, 0),
                            characters_at(std::string(name.size(), '\xFF'), 0)};
        ++first_name_[static_cast<unsigned int>(name[0] - 'a') + 1];
        second_letters_[static_cast<unsigned char>(name[0])] |= 1U << (name[1] & 31);
    }
    std::partial_sum(first_name_.begin(), first_name_.end(), first_name_.begin());
}

std::size_t GreekNameScanner::next_candidate(std::string_view text, std::size_t position) const {
    for (; position + 1 < text.size(); ++position) {
        const auto first = static_cast<unsigned char>(text[position]);
        if ((second_letters_[first] >> (text[position + 1] & 31) & 1) != 0) return position;
    }
    return text.size();
}

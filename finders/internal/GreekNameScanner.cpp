#include "finders/internal/GreekNameScanner.h"

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
        const Names this_name = Names{1} << i;
        with_first_[static_cast<unsigned char>(name[0])] |= this_name;
        with_second_[static_cast<unsigned char>(name[1])] |= this_name;
        if (name.size() > 2) {
            with_third_[static_cast<unsigned char>(name[2])] |= this_name;
        } else {
            for (Names& with : with_third_) with |= this_name;
        }
    }
}

std::size_t GreekNameScanner::next_candidate(std::string_view text, std::size_t position) const {
    const std::size_t size = text.size();
    const auto some_at = [&](std::size_t at) {
        return names_with(text[at], text[at + 1], text[at + 2]) != 0;
    };
    // Two at a time: hardly any stands at either, which one branch tells.
    for (; position + 3 < size; position += 2) {
        const bool here = some_at(position), behind = some_at(position + 1);
        if (here || behind) return here ? position : position + 1;
    }
    for (; position + 1 < size; ++position) {
        if (names_at(text, position) != 0) return position;
    }
    return size;
}

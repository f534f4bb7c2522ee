#include "suppliers/internal/space_group_text.h"

#include <sstream>
#include <vector>

#include "text/internal/ascii.h"

namespace {

std::vector<std::string> directions_of(const std::string& symbol) {
    std::vector<std::string> directions;
    std::istringstream stream(symbol);
    for (std::string direction; stream >> direction;) directions.push_back(direction);
    if (directions.size() == 4 && directions[1] == "1" && directions[3] == "1" &&
        directions[2] != "1") {
        directions.erase(directions.begin() + 3);
        directions.erase(directions.begin() + 1);
    }
    return directions;
}

std::string tagged(const std::string& direction) {
    std::string text;
    for (std::size_t i = 0; i < direction.size(); ++i) {
        const bool before_digit = i + 1 < direction.size() && is_ascii_digit(direction[i + 1]);
        if (direction[i] == '-' && before_digit) {
            text += "<bar>" + direction.substr(++i, 1) + "</bar>";
        } else if (is_ascii_digit(direction[i]) && before_digit) {
            text += direction[i];
            text += "<sub>" + direction.substr(++i, 1) + "</sub>";
        } else {
            text += direction[i];
        }
    }
    return text;
}

}  // namespace

std::string space_group_text(const std::string& symbol) {
    std::string text;
    for (const std::string& direction : directions_of(symbol)) text += tagged(direction);
    return text;
}

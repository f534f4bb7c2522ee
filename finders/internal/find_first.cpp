#include "finders/internal/find_first.h"

#include <stdexcept>

#include "text/Position.h"

unsigned int find_first(const std::string& text, std::string_view label, const char* error) {
    const std::size_t position = text.find(label);
    if (position == std::string::npos) throw std::runtime_error(error);
    return to_position(position);
}

#include "host/split.h"

std::vector<std::string> split(const std::string& text, const std::string& separator,
                               StringFunctionParameters::BlankFieldControl control) {
    std::vector<std::string> pieces;
    const auto add = [&](std::size_t from, std::size_t to) {
        if (from < to || control == StringFunctionParameters::keep_blank_fields) {
            pieces.emplace_back(text, from, to - from);
        }
    };
    std::size_t from = 0;
    std::size_t to = separator.empty() ? std::string::npos : text.find(separator);
    while (to != std::string::npos) {
        add(from, to);
        from = to + separator.size();
        to = text.find(separator, from);
    }
    add(from, text.size());
    return pieces;
}

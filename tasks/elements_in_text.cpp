#include "tasks/elements_in_text.h"

#include <algorithm>

#include "text/Position.h"

namespace {

bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }
bool is_small(char c) { return c >= 'a' && c <= 'z'; }
bool is_of_count(char c) { return (c >= '0' && c <= '9') || c == '.'; }

}  // namespace

std::vector<WrittenElement> elements_in(std::string_view formula) {
    std::vector<WrittenElement> elements;
    for (std::size_t from = 0; from < formula.size();) {
        std::size_t to = from + 1;
        if (!is_capital(formula[from])) {
            from = to;
            continue;
        }
        if (to < formula.size() && is_small(formula[to])) ++to;
        const std::string_view symbol = formula.substr(from, to - from);
        std::size_t end = to;
        while (end < formula.size() && is_of_count(formula[end])) ++end;
        const std::string_view count = end > to ? formula.substr(to, end - to) : "1";
        elements.push_back({{to_position(from), to_position(end)}, symbol, count});
        from = end;
    }
    return elements;
}

bool is_plain_formula(std::string_view text) {
    std::size_t end = 0;
    bool has_number = false;
    for (const WrittenElement& element : elements_in(text)) {
        const std::string_view between = text.substr(end, element.place.from() - end);
        if (between.find_first_not_of(' ') != between.npos) return false;
        end = element.place.to();
        has_number = has_number || element.place.length() > element.symbol.size();
    }
    return has_number && end == text.size() && !text.ends_with('.');
}

std::vector<StringSlice> places_of(const std::vector<WrittenElement>& wanted,
                                   std::string_view formula) {
    const std::vector<WrittenElement> elements = elements_in(formula);
    std::vector<StringSlice> places;
    for (const WrittenElement& element : wanted) {
        const std::size_t before = places.size();
        for (const WrittenElement& other : elements) {
            if (element.is_same(other)) places.push_back(other.place);
        }
        if (places.size() == before) return {};
    }
    std::sort(places.begin(), places.end(),
              [](const StringSlice& a, const StringSlice& b) { return a.from() < b.from(); });
    return places;
}

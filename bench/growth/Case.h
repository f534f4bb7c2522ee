#pragma once

#include <functional>
#include <string>
#include <vector>

/// An operation with its input made, to be run once.
using Operation = std::function<void()>;

struct Case {
    std::string name;
    unsigned int size;
    std::function<Operation(unsigned int size)> prepare;
};

/// `unit` again and again.
inline std::string repeated(const std::string& unit, unsigned int times) {
    std::string text;
    for (unsigned int i = 0; i < times; ++i) text += unit;
    return text;
}

/// `unit`, "#" in it being the number, from 0 on.
inline std::string numbered(const std::string& unit, unsigned int times, unsigned int factor = 1) {
    std::string text;
    const std::size_t sign = unit.find('#');
    for (unsigned int i = 0; i < times; ++i) {
        text += unit.substr(0, sign) + std::to_string(i * factor) + unit.substr(sign + 1);
    }
    return text;
}

// The operations whose cost is promised to grow with their input, on the worst inputs known.

/// Those that find, lay and write styles.
std::vector<Case> style_cases();
/// Those that search and read texts.
std::vector<Case> text_cases();
/// Those that compare texts.
std::vector<Case> comparison_cases();
/// Those of entries as users ask for them: found, paired, edited.
std::vector<Case> task_cases();
/// Those that edit files.
std::vector<Case> edit_cases();
/// Those that check entries.
std::vector<Case> check_cases();
/// Those that lay out pages, reports and lists.
std::vector<Case> output_cases();

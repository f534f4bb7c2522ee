#include "cli/report.h"

#include <cstdio>
#include <set>
#include <string_view>

#include "cli/Progress.h"
#include "markup/internal/controls.h"

namespace {

/// Names of files and texts that are quoted may hold any bytes, and terminals obey some.
void write_line(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        if (!character.valid || is_control(character.code)) {
            line += '?';
        } else {
            append_shown(line, text);
        }
        text.remove_prefix(character.size);
    }
    line += '\n';
    Progress::hide();
    std::fwrite(line.data(), 1, line.size(), stderr);
}

constexpr std::size_t longest_quotation = 60;  // in characters of what was found

std::string place_of(const Problem& problem) {
    const std::string file = problem.file.empty() ? "" : problem.file + ':';
    if (problem.line > 0) {
        std::string place = file + std::to_string(problem.line);
        if (problem.column > 0) place.append(":").append(std::to_string(problem.column));
        return place.append(": ");
    }
    return "lmrtext: " + file + (file.empty() ? "" : " ");
}

std::string sentence(const Problem& problem) {
    std::string text;
    if (problem.level == Problem::Level::warning) text += "warning: ";
    if (problem.level == Problem::Level::note) text += "note: ";
    if (problem.block) text += "data_" + *problem.block;
    if (problem.other_block) text += " and data_" + *problem.other_block;
    if (problem.block) text += ": ";
    if (!problem.item.empty()) text += problem.item + ": ";
    text += problem.expected.empty() ? problem.what : "expected " + problem.expected + ", not";
    if (!problem.found.empty() || !problem.expected.empty()) {
        text += " '" + problem.found.substr(0, longest_quotation) + "'";
    }
    return text;
}

}  // namespace

void report(const std::string& message) { write_line("lmrtext: " + message); }

void report(const Problem& problem) {
    static std::set<std::string> said;
    const std::string text = sentence(problem);
    if (!problem.is_of_run) {
        write_line(place_of(problem) + text);
    } else if (said.insert(text).second) {
        report(text);
    }
}

bool report(const std::vector<Problem>& problems) {
    bool good = true;
    for (const Problem& problem : problems) {
        report(problem);
        good = good && problem.level != Problem::Level::error;
    }
    return good;
}

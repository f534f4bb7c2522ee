#include "app/Diagnostics.h"

#include <cstdio>
#include <string_view>

#include "markup/controls.h"

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
    std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

void report(const std::string& message) { write_line("lmrtext: " + message); }

void report(const std::string& file, unsigned long line, const std::string& message) {
    write_line(file + ":" + std::to_string(line) + ": " + message);
}

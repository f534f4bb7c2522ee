#include "app/Diagnostics.h"

#include <cstdio>
#include <string_view>

#include "markup/Utf8.h"

namespace {

/// Shows control characters, and bytes that are not UTF-8, as "?": names of files and texts that
/// are quoted may hold any bytes, and terminals obey some.
void write_line(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        const char32_t code = character.code;
        const bool shows = character.valid && code >= 0x20 && (code < 0x7F || code > 0x9F);
        line += shows ? text.substr(0, character.size) : "?";
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

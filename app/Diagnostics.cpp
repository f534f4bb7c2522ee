#include "app/Diagnostics.h"

#include <cstdio>

namespace {

void write_line(std::string line) {
    for (char& c : line) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F) c = '?';
    }
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

void report(const std::string& message) { write_line("lmrtext: " + message); }

void report(const std::string& file, unsigned long line, const std::string& message) {
    write_line(file + ":" + std::to_string(line) + ": " + message);
}

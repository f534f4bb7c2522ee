#include "checks/check_bytes.h"

#include <algorithm>

#include "checks/add_finding.h"
#include "entries/written_value.h"
#include "markup/Utf8.h"

namespace {

bool is_forbidden(char c) {
    const bool is_blank = c == '\t' || c == '\n' || c == '\r';
    return (static_cast<unsigned char>(c) < 0x20 && !is_blank) || c == '\x7F';
}

/// The place behind the longest line that a file may have, or the end.
const char* end_of_longest(std::string_view line) {
    std::size_t characters = 0;
    return std::find_if(line.begin(), line.end(), [&](char c) {
        if (!is_continuation_byte(c)) ++characters;
        return characters > longest_cif_line;
    });
}

}  // namespace

void check_bytes(const CifDocument& document, FoundFaults& findings) {
    std::string_view rest = document.bytes();
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        const auto* const forbidden = std::find_if(line.begin(), line.end(), is_forbidden);
        if (forbidden != line.end()) {
            add_finding(findings, document, "control-character", forbidden,
                        std::string(1, *forbidden));
        }
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.size() <= longest_cif_line) continue;
        const char* const beyond = end_of_longest(line);
        if (beyond == line.end()) continue;
        add_finding(findings, document, "line-too-long", beyond,
                    std::to_string(line.size()) + " bytes",
                    "up to " + std::to_string(longest_cif_line) + " characters");
    }
}

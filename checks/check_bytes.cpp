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

std::size_t characters_of(std::string_view line) {
    return line.size() -
           static_cast<std::size_t>(std::count_if(line.begin(), line.end(), is_continuation_byte));
}

}  // namespace

void check_bytes(const CifDocument& document, CheckFindings& findings) {
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
        if (line.size() <= longest_cif_line) continue;
        if (line.ends_with('\r')) line.remove_suffix(1);
        const std::size_t characters = characters_of(line);
        if (characters <= longest_cif_line) continue;
        std::size_t beyond = longest_cif_line;
        while (characters_of(line.substr(0, beyond)) < longest_cif_line) ++beyond;
        add_finding(findings, document, "line-too-long", line.data() + beyond,
                    std::to_string(characters) + " characters",
                    "up to " + std::to_string(longest_cif_line));
    }
}

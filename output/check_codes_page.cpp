#include "output/check_codes_page.h"

#include <algorithm>
#include <string_view>

#include "checks/CheckCode.h"
#include "output/CheckLayout.h"
#include "output/shown_bytes.h"

namespace {

constexpr std::size_t longest_line = 120;  // in characters
constexpr int most_lines = 40;

/// The lines of a file between fences, what cannot be seen in them by its number.
void append_example(std::string& page, std::string_view what, std::string_view file) {
    page.append("\n").append(what).append("\n\n```\n");
    for (int line = 0; !file.empty(); ++line) {
        if (line == most_lines) {
            page += "...\n";
            break;
        }
        const std::size_t end = std::min(file.find('\n'), file.size());
        page.append(shown_in_line(file.substr(0, end), longest_line)).append("\n");
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    page += "```\n";
}

void append_code(std::string& page, const CheckCode& code) {
    page.append("\n### ").append(code.code).append("\n\n");
    page.append("*").append(name_of(code.level)).append("*: ").append(code.summary);
    page.append(".\n\n").append(code.explanation).append("\n");
    append_example(page, "Raises it:", code.example);
    append_example(page, "Does not:", code.near_miss);
}

}  // namespace

std::string check_codes_table() {
    std::string table;
    for (const CheckCode& code : check_codes()) {
        table.append(code.code).append("\t").append(name_of(code.level));
        table.append("\t").append(code.summary).append("\n");
    }
    return table;
}

std::string check_codes_page() {
    std::string page =
        "# What check finds\n\n"
        "Each fault has a code, by which `lmrtext check --only` and `--ignore` choose. Examples\n"
        "are CIF files, or the items of a block of one; `<E9>` stands for a byte that is not\n"
        "UTF-8, `<U+0007>` for a character that cannot be seen. This page is what\n"
        "`lmrtext manual --checks` prints.\n";
    for (const CheckSubject& subject : check_subjects()) {
        if (subject.codes().empty()) continue;
        page.append("\n## ").append(subject.name).append("\n");
        for (const CheckCode& code : subject.codes()) append_code(page, code);
    }
    return page;
}

// The difference of a file and what splices make of it, as a program that applies it reads it.
#include <charconv>
#include <vector>

#include "fuzz/Input.h"
#include "fuzz/shown_text.h"
#include "output/unified_diff.h"

namespace {

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size() - 1) + 1;
        lines.push_back(text.substr(from, end - from));
        from = end;
    }
    return lines;
}

/// "12,3" behind a sign in the line of a hunk: how many lines stand before it, and are in it.
std::pair<std::size_t, std::size_t> range_behind(const std::string& line, char sign) {
    std::size_t first = 0, count = 0;
    const char* const end = line.data() + line.size();
    const auto read = std::from_chars(line.data() + line.find(sign) + 1, end, first);
    require(read.ptr < end && *read.ptr == ',', "a hunk has its places", line);
    std::from_chars(read.ptr + 1, end, count);
    return {first - (count > 0 ? 1 : 0), count};
}

/// Applies the diff from the side of that sign to the other.
std::string patched(const std::string& bytes, const std::string& diff, char from, char to) {
    const std::vector<std::string> old = lines_of(bytes), lines = lines_of(diff);
    std::vector<std::string> made;
    std::size_t done = 0, old_end = 0, new_end = 0;
    const auto copy_to = [&](std::size_t place) {
        require(done <= place && place <= old.size(), "hunks ascend and lie in the file", diff);
        while (done < place) made.push_back(old[done++]);
    };
    for (std::size_t i = 2; i < lines.size(); ++i) {
        const char sign = lines[i][0];
        std::string line = lines[i].substr(1);
        if (sign == '@') {
            require(done == old_end && made.size() == new_end, "hunks have their lines", diff);
            const auto before = range_behind(line, from), after = range_behind(line, to);
            copy_to(before.first);
            require(made.size() == after.first, "hunks stand where they say", diff);
            old_end = done + before.second;
            new_end = made.size() + after.second;
            continue;
        }
        require(sign == ' ' || sign == '-' || sign == '+', "lines have their signs", diff);
        if (i + 1 < lines.size() && lines[i + 1][0] == '\\') {
            line.pop_back();
            ++i;
        }
        if (sign != to) {
            require(done < old.size() && old[done] == line, "old lines are there", diff);
            ++done;
        }
        if (sign != from) made.push_back(line);
    }
    require(diff.empty() || (done == old_end && made.size() == new_end), "hunks have lines", diff);
    copy_to(old.size());
    std::string all;
    for (const std::string& line : made) all += line;
    return all;
}

}  // namespace

// Splices, each a byte that is not 0, one for how many stay, one for how many go, and what comes;
// then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    struct Change {
        std::size_t skipped, replaced;
        std::string after;
    };
    std::vector<Change> changes;
    while (input.byte() != 0) {
        const std::size_t skipped = input.byte(), replaced = input.byte();
        changes.push_back({skipped, replaced, input.text()});
    }
    const std::string bytes = input.rest();
    Splices splices;
    std::size_t at = 0;
    for (const Change& change : changes) {
        at = std::min(at + change.skipped, bytes.size());
        splices.push_back({at, bytes.substr(at, change.replaced), change.after});
        at += splices.back().before.size();
    }
    const std::string after = spliced(bytes, splices);
    const std::string diff = unified_diff("a.cif", bytes, splices);
    require(diff.empty() == (bytes == after), "what changes nothing is empty", diff);
    require(patched(bytes, diff, '-', '+') == after, "the diff makes the new bytes", diff);
    require(patched(after, diff, '+', '-') == bytes, "the diff unmakes the new bytes", diff);
    require(unified_diff("a.cif", after, inverse(splices)).size() == diff.size(),
            "the diff back is as long", diff);
    const std::string colored = unified_diff("a.cif", bytes, splices, true);
    bool is_plain = true;
    for (const char c : diff) is_plain = is_plain && (c == '\n' || (c >= ' ' && c < '\x7F'));
    require(!is_plain || terminal_text(colored) == diff, "colours change no text", colored);
    for (const char c : terminal_text(colored)) {
        require(c == '\n' || c == '\t' || !acts(static_cast<unsigned char>(c)) ||
                    is_continuation_byte(c),
                "nothing that acts passes", colored);
    }
    return 0;
}

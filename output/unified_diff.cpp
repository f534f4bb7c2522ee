#include "output/unified_diff.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "markup/internal/controls.h"

namespace {

constexpr std::size_t context = 3;  // lines

using Lines = std::vector<std::string_view>;

/// With their ends.
Lines lines_of(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

/// Counts the lines that end before places of a text, which are asked for in their order.
class LineCounter {
public:
    explicit LineCounter(std::string_view text) : text_(text) {}

    std::size_t lines_before(std::size_t place) {
        const std::string_view passed = text_.substr(at_, place - at_);
        lines_ += static_cast<std::size_t>(std::count(passed.begin(), passed.end(), '\n'));
        at_ = place;
        return lines_;
    }

private:
    std::string_view text_;
    std::size_t at_ = 0, lines_ = 0;
};

/// Lines of the one text and those of the other that stand in their place.
struct Change {
    std::size_t old_from, old_to, new_from, new_to;
};

/// Without the lines in front and behind that are the same.
void trim(Change& change, const Lines& before, const Lines& after) {
    while (change.old_from < change.old_to && change.new_from < change.new_to &&
           before[change.old_from] == after[change.new_from]) {
        ++change.old_from;
        ++change.new_from;
    }
    while (change.old_from < change.old_to && change.new_from < change.new_to &&
           before[change.old_to - 1] == after[change.new_to - 1]) {
        --change.old_to;
        --change.new_to;
    }
}

std::vector<Change> changes_of(std::string_view bytes, const Lines& before,
                               std::string_view new_bytes, const Lines& after,
                               const Splices& splices) {
    std::vector<Change> all;
    LineCounter old_lines(bytes), new_lines(new_bytes);
    std::size_t more = 0;  // by how much the second text is longer up to there; may wrap
    for (const Splice& splice : splices) {
        const std::size_t from = old_lines.lines_before(splice.from),
                          new_from = new_lines.lines_before(splice.from + more);
        const std::size_t end = splice.from + splice.before.size();
        more += splice.after.size() - splice.before.size();
        const std::size_t to = std::min(old_lines.lines_before(end) + 1, before.size()),
                          new_to = std::min(new_lines.lines_before(end + more) + 1, after.size());
        // Behind the last line there may be several, in one new line.
        if (!all.empty() && (from < all.back().old_to || new_from < all.back().new_to)) {
            all.back().old_to = to;
            all.back().new_to = new_to;
        } else {
            all.push_back({from, to, new_from, new_to});
        }
    }
    for (Change& change : all) trim(change, before, after);
    std::erase_if(all, [](const Change& change) {
        return change.old_from == change.old_to && change.new_from == change.new_to;
    });
    return all;
}

constexpr std::array<bool, 256> shown_as_it_is = [] {
    std::array<bool, 256> shown = printable_ascii;
    shown['\t'] = true;
    return shown;
}();

class DiffWriter {
public:
    explicit DiffWriter(bool with_colors) : with_colors_(with_colors) {}

    void add_heading(const std::string& line) { add(bold, line, "\n"); }

    /// Changes that stand so near to each other that they share their context.
    void add_hunk(const Lines& before, const Lines& after, const Change* first,
                  const Change* last) {
        const std::size_t above = std::min(first->old_from, context),
                          below = std::min(before.size() - last->old_to, context);
        add(cyan,
            "@@ -" + range(first->old_from - above, last->old_to + below) + " +" +
                range(first->new_from - above, last->new_to + below) + " @@",
            "\n");
        std::size_t done = first->old_from - above;
        for (const Change* change = first; change <= last; ++change) {
            add_lines("", ' ', before, done, change->old_from);
            add_lines(red, '-', before, change->old_from, change->old_to);
            add_lines(green, '+', after, change->new_from, change->new_to);
            done = change->old_to;
        }
        add_lines("", ' ', before, done, done + below);
    }

    std::string take() { return std::move(text_); }

private:
    static constexpr std::string_view bold = "\x1b[1m", cyan = "\x1b[36m", red = "\x1b[31m",
                                      green = "\x1b[32m", plain = "\x1b[0m";

    /// "12,3": of no lines the one before them.
    static std::string range(std::size_t from, std::size_t to) {
        return std::to_string(from == to ? from : from + 1) + "," + std::to_string(to - from);
    }

    void add_lines(std::string_view color, char sign, const Lines& lines, std::size_t from,
                   std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            const std::string_view line = lines[i];
            const bool ends = line.ends_with('\n');
            add(color, sign + std::string(line.substr(0, line.size() - (ends ? 1 : 0))), "\n");
            if (!ends) text_ += "\\ No newline at end of file\n";
        }
    }

    void add(std::string_view color, std::string_view line, std::string_view end) {
        if (!with_colors_) {
            text_.append(line).append(end);
            return;
        }
        if (line.ends_with('\r')) line.remove_suffix(1);  // seen in no other way either
        text_ += color;
        append_text(text_, line, shown_as_it_is,
                    [&](std::string_view other) { return append_shown(text_, other); });
        text_.append(color.empty() ? "" : plain).append(end);
    }

    bool with_colors_;
    std::string text_;
};

/// The name of a file as patch reads it: in quotes, with codes, where anything else would end it.
std::string written_name(std::string_view side, const std::string& file) {
    std::string name(side);
    name.append(file.starts_with('/') ? "" : "/").append(file);
    const bool is_plain = std::all_of(name.begin(), name.end(), [](char c) {
        return c != '"' && c != '\\' && !is_control(static_cast<unsigned char>(c));
    });
    if (is_plain) return name.find(' ') == std::string::npos ? name : name + '\t';
    std::string quoted = "\"";
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            quoted.append("\\").push_back(c);
        } else if (byte < 0x20 || byte >= 0x7F) {
            quoted += '\\';
            for (int shift = 6; shift >= 0; shift -= 3) quoted += "01234567"[byte >> shift & 7];
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

}  // namespace

std::string unified_diff(const std::string& file, std::string_view bytes, const Splices& splices,
                         bool with_colors) {
    const std::string new_bytes = spliced(bytes, splices);
    const Lines before = lines_of(bytes), after = lines_of(new_bytes);
    const std::vector<Change> changes = changes_of(bytes, before, new_bytes, after, splices);
    if (changes.empty()) return "";
    DiffWriter writer(with_colors);
    writer.add_heading("--- " + written_name("a", file));
    writer.add_heading("+++ " + written_name("b", file));
    const Change* const end = changes.data() + changes.size();
    for (const Change* first = changes.data(); first < end;) {
        const Change* last = first;
        while (last + 1 < end && (last + 1)->old_from - last->old_to <= 2 * context) ++last;
        writer.add_hunk(before, after, first, last);
        first = last + 1;
    }
    return writer.take();
}

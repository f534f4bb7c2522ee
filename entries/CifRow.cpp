#include "entries/CifRow.h"

#include <algorithm>
#include <iterator>

#include "entries/LoopRows.h"

namespace {

constexpr std::size_t none = std::string::npos;

/// The old rows that can stay in their places while others are moved: a longest ascending part of
/// those that are named.
std::vector<bool> rows_that_stay(const std::vector<CifRow>& rows) {
    std::vector<std::size_t> ends;  // for each length of an ascending part where its last row is
    std::vector<std::size_t> before(rows.size(), none);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!rows[i].old) continue;
        const auto place = std::lower_bound(
            ends.begin(), ends.end(), i,
            [&rows](std::size_t a, std::size_t b) { return *rows[a].old < *rows[b].old; });
        if (place != ends.begin()) before[i] = *std::prev(place);
        if (place == ends.end()) {
            ends.push_back(i);
        } else {
            *place = i;
        }
    }
    std::vector<bool> stays(rows.size());
    for (std::size_t i = ends.empty() ? none : ends.back(); i != none; i = before[i]) {
        stays[i] = true;
    }
    return stays;
}

/// Lines that are to be added, one after the other.
class AddedRows {
public:
    explicit AddedRows(const CifBytes& bytes) : bytes_(bytes) {}

    void add(std::string row) { rows_.push_back(std::move(row)); }
    /// Takes the first of them.
    std::string take_first() {
        std::string first = std::move(rows_.front());
        rows_.erase(rows_.begin());
        return first;
    }

    /// Appends them behind a place, each in a line of its own.
    void append_behind(std::size_t at, std::string_view indent, Splices& splices) {
        std::string text;
        for (const std::string& row : rows_) {
            text += bytes_.line_end_at(at);
            append(row, indent, text);
        }
        const bool goes_on = !bytes_.ends_line(bytes_.behind_blanks(at));
        if (goes_on && !text.empty()) text += bytes_.line_end();  // a comment may end the last
        put(at, std::move(text), splices);
    }

    /// Appends them before a row, which begins there.
    void append_before(std::size_t row, Splices& splices) {
        const bool begins_line = bytes_.only_blanks_before(row);
        const std::string_view indent = bytes_.indent_before(row);
        std::string text;
        if (!begins_line && !rows_.empty()) text += bytes_.line_end();
        for (const std::string& added : rows_) {
            append(added, indent, text);
            text += bytes_.line_end();
        }
        put(bytes_.before_blanks(row), std::move(text), splices);
    }

private:
    static void append(const std::string& row, std::string_view indent, std::string& text) {
        if (!row.starts_with(';')) text += indent;  // a text field begins its line
        text += row;
    }

    void put(std::size_t at, std::string text, Splices& splices) {
        if (!text.empty()) splices.push_back({at, "", std::move(text)});
        rows_.clear();
    }

    const CifBytes& bytes_;
    std::vector<std::string> rows_;
};

}  // namespace

std::string new_row(const CifItem& item, const CifRow& row, const CifBytes& bytes,
                    std::size_t indent) {
    std::string text;
    std::size_t line = indent;  // how long it is
    for (std::size_t column = 0; column < item.columns(); ++column) {
        const auto given =
            std::find_if(row.values.begin(), row.values.end(),
                         [column](const auto& value) { return value.first->column() == column; });
        std::string value = "?";
        if (column > 0) {
            const bool ends_field = line == 1 && text.back() == ';';
            text += ends_field ? bytes.line_end() : std::string_view(" ");
            line = ends_field ? 0 : line + 1;
        }
        if (given != row.values.end() && given->second) {
            CifQuoting quoting = CifQuoting::bare;
            if (item.size() > 0) quoting = item.in_row(0, column).quoting();
            if (quoting == CifQuoting::text_field) quoting = CifQuoting::bare;
            value = written_value(*given->second, quoting,
                                  {bytes.is_version_2(), bytes.line_end(), line, 0});
        }
        const std::size_t last_line = value.find_last_of("\r\n");
        line = last_line == std::string::npos ? line + value.size() : value.size() - last_line - 1;
        text += value;
    }
    return text;
}

void append_rows(const CifItem& item, const std::vector<CifRow>& rows, const CifBytes& bytes,
                 CifBytes::Values& values, Splices& splices) {
    LoopRows old(item, bytes, values);
    const std::vector<bool> stays = rows_that_stay(rows);
    enum class Fate : unsigned char { removed, moved, kept };
    std::vector<Fate> fates(item.size(), Fate::removed);
    AddedRows added(bytes);
    std::size_t last = none;  // the old row that stays before what is added
    const std::string_view indent = item.size() > 0 ? old.indent(0) : std::string_view();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].old) fates[*rows[i].old] = stays[i] ? Fate::kept : Fate::moved;
        if (!stays[i]) {
            added.add(rows[i].old ? old.taken(*rows[i].old)
                                  : new_row(item, rows[i], bytes, indent.size()));
            continue;
        }
        const std::size_t row = *rows[i].old;
        if (last == none) {
            added.append_before(old.begin(row), splices);
        } else {
            added.append_behind(old.behind(last), old.indent(last), splices);
        }
        last = row;
    }
    if (last != none) {
        added.append_behind(old.behind(last), old.indent(last), splices);
    } else if (item.size() > 0) {
        old.replace(0, added.take_first(), splices);
        fates[0] = Fate::kept;
        added.append_behind(old.behind(0), old.indent(0), splices);
    } else {
        added.append_behind(bytes.behind_comment(bytes.end_of(item.tag())), indent, splices);
    }
    std::size_t next = none;
    for (std::size_t row = item.size(); row-- > 0;) {
        if (fates[row] != Fate::kept) {
            old.remove(row, fates[row] == Fate::moved, next, splices);
        }
    }
}

void append_new_loop(const CifItem& item, const std::vector<CifRow>& rows, const CifBytes& bytes,
                     CifBytes::Values& values, Splices& splices) {
    const std::string_view raw = item[0].raw;
    const std::size_t begin = bytes.begin_of(item.tag());
    const std::size_t end = bytes.end_of(raw);
    const std::string_view indent = bytes.indent_before(begin);
    const auto replaced = values.find({bytes.begin_of(raw), raw.size()});
    std::string text("loop_");
    text.append(bytes.line_end()).append(indent).append(item.tag());
    std::string comments;
    bytes.append_comments(bytes.end_of(item.tag()), bytes.begin_of(raw), comments);
    text += comments.empty() ? bytes.line_end() : std::string_view(" ");
    text += comments;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i > 0) text += bytes.line_end();
        std::string row = !rows[i].old               ? new_row(item, rows[i], bytes, indent.size())
                          : replaced != values.end() ? replaced->second
                          : raw.empty()              ? "?"
                                                     : std::string(raw);
        if (CifBytes::is_line_end(row.front())) row.erase(0, bytes.line_end().size());
        const bool keeps_raw = rows[i].old && replaced == values.end();
        if (keeps_raw && begins_with_bare_semicolon(item[0])) text += ' ';
        if (!row.starts_with(';')) text += indent;
        text += row;
    }
    if (replaced != values.end()) values.erase(replaced);
    if (bytes.touches_comment(end)) text += ' ';
    splices.push_back({begin, std::string(bytes.all().substr(begin, end - begin)), text});
}

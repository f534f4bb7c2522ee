#include "entries/CifRow.h"

#include <algorithm>
#include <iterator>

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

/// The rows of a loop in its bytes.
class LoopRows {
public:
    LoopRows(const CifItem& item, const CifBytes& bytes, CifBytes::Values& values)
        : item_(item), bytes_(bytes), values_(values) {}

    std::size_t begin(std::size_t row) const { return bytes_.begin_of(item_.in_row(row, 0).raw); }
    std::size_t end(std::size_t row) const {
        return bytes_.end_of(item_.in_row(row, item_.columns() - 1).raw);
    }
    /// Behind the comment that follows in its line.
    std::size_t behind(std::size_t row) const { return bytes_.behind_comment(end(row)); }
    std::string_view indent(std::size_t row) const { return bytes_.indent_before(begin(row)); }

    /// The bytes of a row with what replaces its values, which is taken.
    std::string taken(std::size_t row);
    /// Appends what removes a row; `next` is where the next row to be removed begins to be, which
    /// is moved to where this one does.
    void remove(std::size_t row, std::size_t& next, Splices& splices);

private:
    void take_values(std::size_t row, Splices* taken);

    const CifItem& item_;
    const CifBytes& bytes_;
    CifBytes::Values& values_;
};

void LoopRows::take_values(std::size_t row, Splices* taken) {
    for (std::size_t column = 0; column < item_.columns(); ++column) {
        const std::string_view raw = item_.in_row(row, column).raw;
        const auto found = values_.find({bytes_.begin_of(raw), raw.size()});
        if (found == values_.end()) continue;
        if (taken) {
            taken->push_back({bytes_.begin_of(raw) - begin(row), std::string(raw), found->second});
        }
        values_.erase(found);
    }
}

std::string LoopRows::taken(std::size_t row) {
    Splices replaced;
    take_values(row, &replaced);
    return spliced(bytes_.all().substr(begin(row), behind(row) - begin(row)), replaced);
}

void LoopRows::remove(std::size_t row, std::size_t& next, Splices& splices) {
    take_values(row, nullptr);
    std::string comments;
    for (std::size_t column = 1; column < item_.columns(); ++column) {
        bytes_.append_comments(bytes_.end_of(item_.in_row(row, column - 1).raw),
                               bytes_.begin_of(item_.in_row(row, column).raw), comments);
    }
    std::size_t from = begin(row);
    std::size_t to = bytes_.behind_blanks(end(row));
    if (!bytes_.only_blanks_before(from)) {
        from = bytes_.before_blanks(from);
        to = end(row);
        if (!comments.empty()) comments = std::string(1, ' ').append(comments);
    } else if (bytes_.ends_line(to)) {
        from = bytes_.before_blanks(from);
        // The last line of a file that has no line end takes that before it.
        const bool takes_line_end_before = to == bytes_.all().size() || next <= to;
        if (takes_line_end_before && comments.empty()) {
            from = bytes_.before_line_end(from);
        } else {
            to = bytes_.behind_line_end(to);
        }
    }
    next = from;
    splices.push_back({from, std::string(bytes_.all().substr(from, to - from)), comments});
}

/// Lines that are to be added, one after the other.
class AddedRows {
public:
    explicit AddedRows(const CifBytes& bytes) : bytes_(bytes) {}

    void add(std::string row) { rows_.push_back(std::move(row)); }

    /// Appends them behind a place, each in a line of its own.
    void append_behind(std::size_t at, std::string_view indent, Splices& splices) {
        std::string text;
        for (const std::string& row : rows_) {
            text += bytes_.line_end();
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

/// Where the tags of a loop end that has no rows.
std::size_t end_of_tags(const CifItem& item, const CifBytes& bytes) {
    const std::string_view all = bytes.all();
    std::size_t at = bytes.end_of(item.tag());
    for (std::size_t column = item.column() + 1; column < item.columns(); ++column) {
        at = all.find_first_of(" \t\r\n", all.find("_", at));
    }
    return std::min(at, all.size());
}

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
    std::vector<bool> is_removed(item.size(), true);
    AddedRows added(bytes);
    std::size_t last = none;  // the old row that stays before what is added
    const std::string_view indent = item.size() > 0 ? old.indent(0) : std::string_view();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!stays[i]) {
            added.add(rows[i].old ? old.taken(*rows[i].old)
                                  : new_row(item, rows[i], bytes, indent.size()));
            continue;
        }
        const std::size_t row = *rows[i].old;
        is_removed[row] = false;
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
        added.append_before(old.begin(0), splices);
    } else {
        added.append_behind(bytes.behind_comment(end_of_tags(item, bytes)), indent, splices);
    }
    std::size_t next = none;
    for (std::size_t row = item.size(); row-- > 0;) {
        if (is_removed[row]) old.remove(row, next, splices);
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
                                                     : std::string(raw);
        if (CifBytes::is_line_end(row.front())) row.erase(0, bytes.line_end().size());
        if (!row.starts_with(';')) text += indent;
        text += row;
    }
    if (replaced != values.end()) values.erase(replaced);
    splices.push_back({begin, std::string(bytes.all().substr(begin, end - begin)), text});
}

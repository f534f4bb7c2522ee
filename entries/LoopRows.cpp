#include "entries/LoopRows.h"

#include <algorithm>

bool begins_with_bare_semicolon(const CifValue& value) {
    return value.raw.starts_with(';') && value.quoting() == CifQuoting::bare;
}

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

std::string LoopRows::comments_in(std::size_t row) const {
    std::string comments;
    for (std::size_t column = 1; column < item_.columns(); ++column) {
        bytes_.append_comments(bytes_.end_of(item_.in_row(row, column - 1).raw),
                               bytes_.begin_of(item_.in_row(row, column).raw), comments);
    }
    return comments;
}

std::string LoopRows::taken(std::size_t row) {
    Splices replaced;
    take_values(row, &replaced);
    std::string text = spliced(bytes_.all().substr(begin(row), behind(row) - begin(row)), replaced);
    return begins_with_bare_semicolon(item_.in_row(row, 0)) ? std::string(1, ' ').append(text)
                                                            : text;
}

void LoopRows::replace(std::size_t row, const std::string& by, Splices& splices) {
    take_values(row, nullptr);
    std::string text;
    if (by.starts_with(';') && !bytes_.begins_line(begin(row))) text += bytes_.line_end();
    text += by;
    const std::string comments = comments_in(row);
    if (!comments.empty()) text.append(bytes_.line_end()).append(comments);
    if (bytes_.touches_comment(end(row))) text += ' ';
    splices.push_back(
        {begin(row), std::string(bytes_.all().substr(begin(row), end(row) - begin(row))), text});
}

void LoopRows::remove(std::size_t row, bool is_moved, std::size_t& next, Splices& splices) {
    take_values(row, nullptr);
    std::string stays = is_moved ? "" : comments_in(row);
    const std::size_t row_end = is_moved ? behind(row) : end(row);
    std::size_t from = begin(row);
    std::size_t to = bytes_.behind_blanks(row_end);
    if (!bytes_.only_blanks_before(from)) {
        from = bytes_.before_blanks(from);
        to = row_end;
        if (!stays.empty() || bytes_.touches_comment(to)) stays = std::string(1, ' ').append(stays);
    } else if (bytes_.ends_line(to)) {
        from = bytes_.before_blanks(from);
        // The last line of a file that has no line end takes that before it.
        const bool takes_line_end_before = to == bytes_.all().size() || next <= to;
        if (takes_line_end_before && stays.empty()) {
            from = bytes_.before_line_end(from);
        } else {
            to = bytes_.behind_line_end(to);
        }
    } else if (bytes_.all()[to] == ';') {
        --to;  // at the beginning of a line it would begin a text field
    }
    to = std::min(to, next);
    next = from;
    splices.push_back({from, std::string(bytes_.all().substr(from, to - from)), stays});
}

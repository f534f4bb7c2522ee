#include "entries/CifBytes.h"

#include <algorithm>

namespace {

constexpr std::string_view line_ends = "\r\n";
constexpr std::string_view blanks = " \t";

bool is_blank(char c) { return c == ' ' || c == '\t'; }

/// How the first line ends; a "\r" ends lines where no "\n" does.
std::string_view first_line_end(std::string_view bytes) {
    const std::size_t at = bytes.find('\n');
    if (at == std::string_view::npos) return bytes.find('\r') == at ? "\n" : "\r";
    return at > 0 && bytes[at - 1] == '\r' ? "\r\n" : "\n";
}

}  // namespace

CifBytes::CifBytes(const CifDocument& document)
    : all_(document.bytes()),
      line_end_(first_line_end(all_)),
      is_version_2_(document.is_version_2()) {}

/// Looks no further than lines may be long.
ValuePlace CifBytes::place_of(std::string_view value) const {
    const std::size_t begin = begin_of(value);
    std::size_t first = begin;
    while (!begins_line(first) && begin - first <= longest_cif_line) --first;
    const std::string_view rest = all_.substr(end_of(value), longest_cif_line);
    std::size_t behind = std::min({rest.find('\n'), rest.find('\r'), rest.size()});
    if (touches_comment(end_of(value))) ++behind;  // for the blank that will stand between
    return {is_version_2_, line_end_, begin - first, behind};
}

std::string_view CifBytes::indent_before(std::size_t at) const {
    const std::size_t first = before_blanks(at);
    return begins_line(first) ? all_.substr(first, at - first) : std::string_view();
}

bool CifBytes::touches_comment(std::size_t at) const { return all_.substr(at, 1) == "#"; }

std::size_t CifBytes::behind_comment(std::size_t at) const {
    std::size_t end = behind_blanks(at);
    if (end < all_.size() && all_[end] == '#')
        end = std::min(all_.find_first_of(line_ends, end), all_.size());
    return ends_line(end) ? end : at;
}

std::string_view CifBytes::line_end_at(std::size_t at) const {
    if (at == all_.size() || !is_line_end(all_[at])) return line_end_;
    return all_.substr(at, behind_line_end(at) - at);
}

std::size_t CifBytes::behind_blanks(std::size_t at) const {
    return std::min(all_.find_first_not_of(blanks, at), all_.size());
}

std::size_t CifBytes::before_blanks(std::size_t at) const {
    while (at > 0 && is_blank(all_[at - 1])) --at;
    return at;
}

std::size_t CifBytes::behind_line_end(std::size_t at) const {
    if (at == all_.size()) return at;
    return at + (all_.substr(at, 2) == "\r\n" ? 2 : 1);
}

std::size_t CifBytes::before_line_end(std::size_t at) const {
    if (at == 0) return at;
    return at - (at > 1 && all_.substr(at - 2, 2) == "\r\n" ? 2 : 1);
}

void CifBytes::append_comments(std::size_t from, std::size_t to, std::string& comments) const {
    std::string_view rest = all_.substr(from, to - from);
    while (true) {
        rest.remove_prefix(std::min(rest.find('#'), rest.size()));
        if (rest.empty()) return;
        const std::string_view comment = rest.substr(0, rest.find_first_of(line_ends));
        comments.append(comment).append(line_end_);
        rest.remove_prefix(comment.size());
    }
}

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "entries/CifDocument.h"
#include "entries/written_value.h"

/// The bytes of a document as they are seen when some of them are to be replaced: lines, blanks and
/// comments around values.
class CifBytes {
public:
    /// What shall stand in place of values, by where they begin and their size.
    using Values = std::map<std::pair<std::size_t, std::size_t>, std::string>;

    /// The document must live on.
    explicit CifBytes(const CifDocument& document);

    std::string_view all() const { return all_; }
    /// As the lines end.
    std::string_view line_end() const { return line_end_; }
    /// As the line ends in which a position is, where that is its end.
    std::string_view line_end_at(std::size_t at) const;
    bool is_version_2() const { return is_version_2_; }

    /// Where a part of the bytes begins and ends.
    /// @{
    std::size_t begin_of(std::string_view part) const { return offset_of(part.data()); }
    std::size_t end_of(std::string_view part) const { return begin_of(part) + part.size(); }
    /// @}
    /// How far a place is from the first byte.
    std::size_t offset_of(const char* place) const {
        return static_cast<std::size_t>(place - all_.data());
    }
    ValuePlace place_of(std::string_view value) const;
    /// The blanks from which its line begins to a position, where there is nothing else.
    bool only_blanks_before(std::size_t at) const { return indent_before(at).data() != nullptr; }
    std::string_view indent_before(std::size_t at) const;
    /// Whether a line begins at a position; a "\r" among "\n" begins none to other readers.
    bool begins_line(std::size_t at) const { return at == 0 || all_[at - 1] == line_end_.back(); }
    /// Whether a comment begins at a position, with no blank between it and what is before.
    bool touches_comment(std::size_t at) const;
    /// Behind the blanks and the comment that follow in the line where nothing else does, else the
    /// position itself.
    std::size_t behind_comment(std::size_t at) const;
    /// Behind the blanks that follow, and those before.
    /// @{
    std::size_t behind_blanks(std::size_t at) const;
    std::size_t before_blanks(std::size_t at) const;
    /// @}
    bool ends_line(std::size_t at) const { return at == all_.size() || is_line_end(all_[at]); }
    /// Behind the line end at a position, and before the one that ends there.
    /// @{
    std::size_t behind_line_end(std::size_t at) const;
    std::size_t before_line_end(std::size_t at) const;
    /// @}
    /// Appends the comments among the blanks of a range, each with a line end.
    void append_comments(std::size_t from, std::size_t to, std::string& comments) const;

    static bool is_line_end(char c) { return c == '\n' || c == '\r'; }

private:
    std::string_view all_, line_end_;
    bool is_version_2_;
};

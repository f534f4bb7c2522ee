#include "search/MultipleLineTextComparison.h"

#include <algorithm>
#include <string_view>
#include <typeinfo>
#include <utility>

#include "host/KOVRLog.h"
#include "host/split.h"
#include "search/EntireTextComparison.h"
#include "text/Position.h"
#include "text/StringSliceReducer.h"

namespace {

constexpr int debug_level = 3;

/// One line of the text.
struct OffsetLine {
    std::string text;
    unsigned int offset;  // where it starts in the whole text
};

std::vector<std::string> split_lines(const std::string& text) {
    // Blank lines count: without them the offsets of the others would be wrong.
    return split(text, "\n", StringFunctionParameters::keep_blank_fields);
}

std::vector<OffsetLine> make_offsets(std::vector<std::string> lines) {
    std::vector<OffsetLine> result;
    unsigned int offset = 0;
    for (std::string& line : lines) {
        const unsigned int length = length_of(line);
        result.push_back({std::move(line), offset});
        offset += length + 1;
    }
    return result;
}

/// Searches each term line in each text line.
void match_pairs(TextSearch& line_search, const std::vector<OffsetLine>& text_lines,
                 const std::vector<std::string>& term_lines, StringSliceReducer& matches) {
    std::vector<StringSlice> found;
    for (const OffsetLine& line : text_lines) {
        for (const std::string& term : term_lines) {
            found.clear();
            line_search.set_search_term(term);
            if (!line_search.search(line.text, found)) continue;
            for (const StringSlice& slice : found) {
                matches.add({slice.from() + line.offset, slice.to() + line.offset});
            }
        }
    }
}

/// What match_pairs() does for a search that matches equal lines only and a term that has lines.
void match_equal_lines(TextSearch& line_search, const std::vector<OffsetLine>& text_lines,
                       const std::vector<std::string>& term_lines, StringSliceReducer& matches) {
    // Sorted, not hashed: lines that were made to collide cost no more than others.
    std::vector<std::string_view> terms(term_lines.begin(), term_lines.end());
    std::sort(terms.begin(), terms.end());
    for (const OffsetLine& line : text_lines) {
        if (!std::binary_search(terms.begin(), terms.end(), line.text)) continue;
        matches.add({line.offset, line.offset + length_of(line.text)});
    }
    line_search.set_search_term(term_lines.back());
}

}  // namespace

MultipleLineTextComparison::MultipleLineTextComparison(THandle<TextSearch> line_search)
    : line_search_(std::move(line_search)) {}

MultipleLineTextComparison::~MultipleLineTextComparison() = default;

bool MultipleLineTextComparison::comparison_search(const std::string& term, const std::string& text,
                                                   std::vector<StringSlice>& slices) const {
    if (KOVRLog::is_open(debug_level)) {
        KOVRLog::start_debug_line(debug_level)
            << "MultipleLineTextComparison search: " << term << "\ntext: " << text;
        KOVRLog::end_debug_line();
    }
    check_length(text);  // throws where positions would not do
    const std::vector<std::string> term_lines = split_lines(term);
    const std::vector<OffsetLine> text_lines = make_offsets(split_lines(text));
    StringSliceReducer matches;
    if (!text_lines.empty() && !term_lines.empty()) {
        TextSearch& line_search = *line_search_;
        const bool equal_lines = typeid(line_search) == typeid(EntireTextComparison);
        (equal_lines ? match_equal_lines : match_pairs)(line_search, text_lines, term_lines,
                                                        matches);
    }
    if (KOVRLog::is_open(debug_level)) {
        std::ostream& line = KOVRLog::start_debug_line(debug_level);
        line << "MultipleLineTextComparison matches: ";
        unsigned int index = 0;
        for (const StringSlice& slice : matches.slices()) line << index++ << ": " << slice << '\t';
        KOVRLog::end_debug_line();
    }
    slices.insert(slices.end(), matches.slices().begin(), matches.slices().end());
    return term == text && !text.empty();
}

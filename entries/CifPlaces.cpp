#include <algorithm>

#include "entries/CifDocument.h"

// Where what a document holds stands in its bytes.

std::size_t CifDocument::block_at(const char* place) const {
    const auto behind = std::upper_bound(
        contents_.blocks.begin(), contents_.blocks.end(), place,
        [](const char* at, const Contents::Block& block) { return at < block.heading; });
    return static_cast<std::size_t>(behind - contents_.blocks.begin()) - 1;
}

unsigned long CifDocument::line_of(const char* place) const {
    if (line_ends_.empty()) {
        for (std::size_t i = 0; i < bytes_.size(); ++i) {
            const bool carriage_return = bytes_[i] == '\r' && bytes_.substr(i + 1, 1) != "\n";
            if (carriage_return || bytes_[i] == '\n') line_ends_.push_back(&bytes_[i]);
        }
        line_ends_.push_back(bytes_.data() + bytes_.size());
    }
    const auto end = std::lower_bound(line_ends_.begin(), line_ends_.end(), place);
    return static_cast<unsigned long>(end - line_ends_.begin()) + 1;
}

unsigned long CifDocument::column_of(const char* place) const {
    const unsigned long line = line_of(place);
    const char* const begin = line == 1 ? bytes_.data() : line_ends_[line - 2] + 1;
    return static_cast<unsigned long>(place - begin) + 1;
}

const char* CifDocument::end_of_heading(std::size_t index) const {
    const Contents::Block& block = contents_.blocks[index];
    const bool has_name = block.name.data() == block.heading;  // else "data_" or "global_"
    if (has_name) return block.heading + block.name.size();
    const bool is_global = block.name.empty();
    return block.heading + (is_global ? std::string_view("global_").size() : 0);
}

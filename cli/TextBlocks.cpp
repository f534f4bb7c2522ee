#include "cli/TextBlocks.h"

#include <string_view>
#include <utility>

namespace {

constexpr std::size_t long_text = 1 << 20;

/// Passes over the texts between, where counting goes character by character.
unsigned long count_of(char separator, std::string_view bytes) {
    unsigned long count = 0;
    for (std::size_t at = bytes.find(separator); at != bytes.npos;
         at = bytes.find(separator, at + 1)) {
        ++count;
    }
    return count;
}

}  // namespace

bool TextBlocks::next(TextBlock& block) {
    block.file = file_.name();
    block.first = number_;
    block.bytes = std::exchange(rest_, {});
    std::size_t end = 0;       // of the last whole text
    std::size_t searched = 0;  // up to here there is none
    do {
        const std::string_view fresh = std::string_view(block.bytes).substr(searched);
        const bool is_long = searched >= long_text;
        const std::size_t found = is_long ? fresh.find(separator_) : fresh.rfind(separator_);
        if (found != std::string_view::npos) end = searched + found + 1;
        searched = block.bytes.size();
    } while (end == 0 && file_.read(block.bytes));
    if (end > 0) {
        rest_ = block.bytes.substr(end);
        block.bytes.resize(end);
    }
    block.count = count_of(separator_, block.bytes);
    number_ += block.count;
    return !block.bytes.empty();
}

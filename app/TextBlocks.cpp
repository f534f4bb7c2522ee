#include "app/TextBlocks.h"

#include <algorithm>
#include <utility>

bool TextBlocks::next(TextBlock& block) {
    block.file = file_.name();
    block.first = number_;
    block.bytes = std::exchange(rest_, {});
    std::size_t end = 0;  // of the last whole text
    while (end == 0) {
        const std::size_t searched = block.bytes.size();
        if (!file_.read(block.bytes)) break;
        const std::size_t last = block.bytes.rfind(separator_);
        if (last != std::string::npos && last >= searched) end = last + 1;
    }
    if (end > 0) {
        rest_ = block.bytes.substr(end);
        block.bytes.resize(end);
    }
    number_ +=
        static_cast<unsigned long>(std::count(block.bytes.begin(), block.bytes.end(), separator_));
    return !block.bytes.empty();
}

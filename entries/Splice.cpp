#include "entries/Splice.h"

#include <stdexcept>

std::string spliced(std::string_view bytes, const Splices& splices) {
    std::string result;
    std::size_t done = 0;
    for (const Splice& splice : splices) {
        const bool in_order = splice.from >= done && splice.from <= bytes.size();
        if (!in_order || bytes.substr(splice.from, splice.before.size()) != splice.before) {
            throw std::invalid_argument("other bytes stand where a change is to be made");
        }
        result += bytes.substr(done, splice.from - done);
        result += splice.after;
        done = splice.from + splice.before.size();
    }
    result += bytes.substr(done);
    return result;
}

Splices inverse(const Splices& splices) {
    Splices inverted;
    inverted.reserve(splices.size());
    std::size_t longer = 0;  // modulo the range of sizes, as texts may become shorter
    for (const Splice& splice : splices) {
        inverted.push_back({splice.from + longer, splice.after, splice.before});
        longer += splice.after.size() - splice.before.size();
    }
    return inverted;
}

#include "fuzz/ExpectedValues.h"

#include <algorithm>

#include "fuzz/writable_text.h"

ExpectedValues as_they_are(const CifReading& reading) {
    ExpectedValues values;
    values.reserve(reading.values.size());
    for (const std::string& raw : reading.values) {
        values.push_back(raw.empty() ? ExpectedValue() : ExpectedValue{raw, {}});
    }
    return values;
}

std::string complaint_of_values(const CifReading& after, const ExpectedValues& expected) {
    if (after.values.size() != expected.size()) return "more or fewer values";
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto& [raw, text] = expected[i];
        if (raw) {
            if (after.values[i] != *raw) return after.values[i] + " instead of " + *raw;
            continue;
        }
        const std::optional<std::string> read = after.text(i);
        if (read.has_value() == text.has_value() && (!text || *read == with_line_feeds(*text))) {
            continue;
        }
        return "read as " + read.value_or("nothing") + " instead of " + text.value_or("nothing");
    }
    return {};
}

std::string complaint_of_texts(const CifDocument& document, const CifReading& reading) {
    std::size_t seen = 0;
    for (std::size_t block = 0; block < document.blocks(); ++block) {
        for (const CifItem* const item : document.items(block)) {
            const CifReading::Item& other = reading.items[seen++];
            for (std::size_t row = 0; row < item->size(); ++row) {
                const CifValue value = (*item)[row];
                const auto text = reading.text(other.first + row * other.stride);
                if (value.is_none() != !text || value.content() != text.value_or("")) {
                    return value.content() + " is the content of " + std::string(value.raw);
                }
            }
        }
    }
    return {};
}

std::string quoted(const Splices& splices) {
    std::string text;
    for (const Splice& splice : splices) {
        const std::string at = std::to_string(splice.from);
        text.append("\n at ").append(at).append(" <").append(splice.before);
        text.append("> becomes <").append(splice.after).append(">");
    }
    return text;
}

bool same_in_any_order(std::vector<std::string> a, std::vector<std::string> b) {
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return a == b;
}

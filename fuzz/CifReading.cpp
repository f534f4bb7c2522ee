#include "fuzz/CifReading.h"

#include <gemmi/cif.hpp>
#include <stdexcept>

#include "fuzz/CifTokens.h"
#include "fuzz/writable_text.h"

namespace {

bool begins_with(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

std::string_view without_mark(std::string_view bytes) {
    if (begins_with(bytes, "\xEF\xBB\xBF")) bytes.remove_prefix(3);
    return bytes;
}

bool says_version_2(std::string_view bytes) {
    return begins_with(bytes, "#\\#CIF_2.0") && (bytes.size() == 10 || is_cif_blank(bytes[10]));
}

/// Makes a reading of what stands in a file one behind the other.
class CifReadingMaker {
public:
    explicit CifReadingMaker(CifReading& reading) : reading_(reading) {}

    void add_heading(const std::string& heading) {
        end_item();
        reading_.outline.push_back(heading);
        if (begins_with(heading, "save_")) {
            in_frame_ = heading.size() > 5;
        } else {
            in_frame_ = false;
            ++blocks_;
        }
    }
    void begin_loop() {
        end_item();
        reading_.outline.emplace_back("loop_");
        in_loop_ = true;
    }
    void add_tag(const std::string& tag) {
        if (!in_loop_ || has_values()) end_item();
        if (columns_.empty()) first_ = reading_.values.size();
        reading_.outline.push_back(tag);
        columns_.push_back(tag);
    }
    void add_value(const std::string& raw) {
        if (columns_.empty() || (!in_loop_ && has_values())) {
            throw std::runtime_error("a value without a tag: " + raw);
        }
        reading_.values.push_back(raw);
    }
    void end_item() {
        if (!in_loop_ && !columns_.empty() && !has_values()) reading_.values.emplace_back();
        const std::size_t values = reading_.values.size() - first_, stride = columns_.size();
        if (in_loop_ && stride == 0) throw std::runtime_error("a loop without tags");
        if (stride > 0 && values % stride != 0) throw std::runtime_error("a loop is cut");
        for (std::size_t i = 0; i < stride && !in_frame_; ++i) {
            reading_.items.push_back(
                {blocks_ - 1, columns_[i], i, first_ + i, stride, values / stride, in_loop_});
        }
        columns_.clear();
        in_loop_ = false;
    }
    bool has_values() const { return !columns_.empty() && reading_.values.size() > first_; }

private:
    CifReading& reading_;
    std::vector<std::string> columns_;  // of the item or loop that is read
    std::size_t blocks_ = 0, first_ = 0;
    bool in_loop_ = false, in_frame_ = false;
};

void add_word(const std::string& word, CifReadingMaker& maker) {
    const std::string lower = gemmi::to_lower(word);
    if (begins_with(lower, "data_")) {
        maker.add_heading("data_" + (word.size() == 5 ? "#" : word.substr(5)));
    } else if (begins_with(lower, "save_")) {
        maker.add_heading("save_" + word.substr(5));
    } else if (lower == "global_") {
        maker.add_heading("data_");
    } else if (lower == "loop_") {
        maker.begin_loop();
    } else if (lower == "stop_") {
        maker.end_item();
    } else if (word[0] == '_') {
        maker.add_tag(word);
    } else if (word[0] == '$' || begins_with(lower, "loop_") || begins_with(lower, "stop_") ||
               begins_with(lower, "global_")) {
        throw std::runtime_error("reserved: " + word);
    } else {
        maker.add_value(word);
    }
}

void add_items(const std::vector<gemmi::cif::Item>& items, CifReadingMaker& maker) {
    for (const gemmi::cif::Item& item : items) {
        if (item.type == gemmi::cif::ItemType::Pair) {
            maker.add_tag(item.pair[0]);
            maker.add_value(item.pair[1]);
            maker.end_item();
        } else if (item.type == gemmi::cif::ItemType::Loop) {
            maker.begin_loop();
            for (const std::string& tag : item.loop.tags) maker.add_tag(tag);
            for (const std::string& value : item.loop.values) maker.add_value(value);
            maker.end_item();
        } else {
            maker.add_heading("save_" + item.frame.name);
            add_items(item.frame.items, maker);
            maker.add_heading("save_");
        }
    }
}

/// Joins lines that end with a backslash, and blanks behind it, where the first is that alone.
std::string unfolded(const std::string& text) {
    std::string joined;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        std::size_t last = end;
        while (last > from && is_cif_blank(text[last - 1])) --last;
        const bool folds = end < text.size() && last > from && text[last - 1] == '\\';
        if (from == 0 && (!folds || last != 1)) return text;
        joined.append(text, from, (folds ? last - 1 : end) - from);
        if (!folds && end < text.size()) joined += '\n';
        from = end + 1;
    }
    return joined;
}

}  // namespace

std::optional<std::string> CifReading::text(std::size_t value) const {
    const std::string& raw = values[value];
    if (raw.empty() || raw == "?" || raw == ".") return std::nullopt;
    if (is_version_2 && raw.size() >= 6 &&
        (begins_with(raw, "'''") || begins_with(raw, "\"\"\""))) {
        return with_line_feeds(raw.substr(3, raw.size() - 6));
    }
    const std::string text = with_line_feeds(gemmi::cif::as_string(raw));
    return raw[0] == ';' && raw.find('\n') != raw.npos ? unfolded(text) : text;
}

CifReading read_cif_tokens(std::string_view bytes) {
    CifReading reading;
    bytes = without_mark(bytes);
    reading.is_version_2 = says_version_2(bytes);
    CifTokens tokens(bytes, reading.is_version_2);
    CifReadingMaker maker(reading);
    std::string_view raw;
    for (CifTokens::Kind kind{}; (kind = tokens.next(raw)) != CifTokens::end;) {
        if (kind == CifTokens::comment) reading.comments.emplace_back(raw);
        if (kind == CifTokens::word) add_word(std::string(raw), maker);
        if (kind == CifTokens::value) maker.add_value(std::string(raw));
    }
    maker.end_item();
    return reading;
}

std::string disagreement_with_gemmi(std::string_view bytes, const CifReading& reading) {
    bytes = without_mark(bytes);
    CifReading other;
    CifReadingMaker maker(other);
    try {
        gemmi::cif::Document document;
        gemmi::cif::parse_input(document,
                                tao::pegtl::memory_input<>(bytes.data(), bytes.size(), "CIF"));
        for (const gemmi::cif::Block& block : document.blocks) {
            maker.add_heading("data_" + block.name);
            add_items(block.items, maker);
        }
        maker.end_item();
    } catch (const std::exception& error) {
        return error.what();
    }
    if (other.outline != reading.outline) return "other tags";
    if (other.values != reading.values) return "other values";
    return {};
}

std::string disagreement_with_document(const CifDocument& document, const CifReading& reading) {
    if (document.is_version_2() != reading.is_version_2) return "another version";
    std::size_t seen = 0;
    for (std::size_t block = 0; block < document.blocks(); ++block) {
        for (const CifItem* const item : document.items(block)) {
            if (seen == reading.items.size()) return "more items";
            const CifReading::Item& other = reading.items[seen++];
            if (item->tag() != other.tag) return "another tag: " + other.tag;
            if (item->size() != other.size) return "other rows: " + other.tag;
            for (std::size_t row = 0; row < other.size; ++row) {
                const std::string& raw = reading.values[other.first + row * other.stride];
                const std::string_view ours = (*item)[row].raw;
                if (ours != raw) return "the value " + raw + " is read as " + std::string(ours);
            }
        }
    }
    return seen == reading.items.size() ? "" : "fewer items";
}

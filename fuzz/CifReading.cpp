#include "fuzz/CifReading.h"

#include <gemmi/cif.hpp>
#include <stdexcept>

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool begins_with(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

std::string_view without_mark(std::string_view bytes) {
    if (begins_with(bytes, "\xEF\xBB\xBF")) bytes.remove_prefix(3);
    return bytes;
}

bool says_version_2(std::string_view bytes) {
    return begins_with(bytes, "#\\#CIF_2.0") && (bytes.size() == 10 || is_blank(bytes[10]));
}

class CifTokens {
public:
    enum Kind { end, comment, word, value };

    CifTokens(std::string_view bytes, bool is_version_2)
        : bytes_(bytes), is_version_2_(is_version_2) {}

    /// The next; `raw` is what stands there. A word is a tag, a keyword or a bare value.
    Kind next(std::string_view& raw) {
        while (at_ < bytes_.size() && is_blank(bytes_[at_])) ++at_;
        if (at_ == bytes_.size()) return end;
        const std::size_t from = at_;
        const Kind kind = pass_token("");
        raw = bytes_.substr(from, at_ - from);
        if (kind == value && at_ < bytes_.size() && !is_blank(bytes_[at_]) && bytes_[at_] != '#') {
            throw std::runtime_error("no blank behind " + std::string(raw));
        }
        if (kind == comment && raw.back() == '\r') raw.remove_suffix(1);
        return kind;
    }

private:
    bool is_at(std::string_view what) const { return bytes_.compare(at_, what.size(), what) == 0; }

    void pass(std::string_view closing, std::size_t opening_size) {
        at_ = bytes_.find(closing, at_ + opening_size);
        if (at_ == bytes_.npos) throw std::runtime_error("open at the end of the file");
        at_ += closing.size();
    }

    void pass_quoted(std::string_view quote) {
        const std::string three = std::string(quote) + std::string(quote) + std::string(quote);
        if (is_version_2_ && is_at(three)) return pass(three, 3);
        const std::size_t from = at_;
        do {
            pass(quote, at_ == from ? 1 : 0);
        } while (!is_version_2_ && at_ < bytes_.size() && !is_blank(bytes_[at_]) &&
                 bytes_[at_] != '#');
        if (bytes_.substr(from, at_ - from).find('\n') != bytes_.npos) {
            throw std::runtime_error("open at the end of the line");
        }
    }

    /// A list or table with all that is in it.
    void pass_brackets() {
        for (std::size_t depth = 0;;) {
            while (at_ < bytes_.size() && is_blank(bytes_[at_])) ++at_;
            if (at_ == bytes_.size()) throw std::runtime_error("open at the end of the file");
            const char c = bytes_[at_];
            if (c == '[' || c == '{') ++depth;
            if (c == ']' || c == '}') --depth;
            if (std::string_view("[]{}:").find(c) == std::string_view::npos) {
                pass_token("[]{}");
            } else {
                ++at_;
            }
            if (depth == 0) return;
        }
    }

    Kind pass_token(std::string_view separators) {
        const char c = bytes_[at_];
        if (c == '#') {
            at_ = std::min(bytes_.find('\n', at_), bytes_.size());
            return comment;
        }
        if (c == ';' && (at_ == 0 || bytes_[at_ - 1] == '\n')) {
            pass("\n;", 1);
        } else if (c == '\'' || c == '"') {
            pass_quoted(bytes_.substr(at_, 1));
        } else if (is_version_2_ && separators.empty() && (c == '[' || c == '{')) {
            pass_brackets();
        } else {
            while (at_ < bytes_.size() && !is_blank(bytes_[at_]) &&
                   separators.find(bytes_[at_]) == separators.npos) {
                ++at_;
            }
            return word;
        }
        return value;
    }

    std::string_view bytes_;
    bool is_version_2_;
    std::size_t at_ = 0;
};

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
        reading_.outline.push_back("loop_");
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

std::string with_line_feeds(std::string text) {
    for (std::size_t at = 0; (at = text.find('\r', at)) != text.npos; ++at) {
        if (at + 1 < text.size() && text[at + 1] == '\n') text.erase(at, 1);
        text[at] = '\n';
    }
    return text;
}

/// Joins lines that end with a backslash, and blanks behind it, where the first is that alone.
std::string unfolded(const std::string& text) {
    std::string joined;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        std::size_t last = end;
        while (last > from && is_blank(text[last - 1])) --last;
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
    for (CifTokens::Kind kind; (kind = tokens.next(raw)) != CifTokens::end;) {
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

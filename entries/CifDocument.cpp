#include "entries/CifDocument.h"

#include <algorithm>
#include <gemmi/cif.hpp>

#include "entries/cif_text.h"

namespace {

namespace cif = gemmi::cif;
namespace pegtl = tao::pegtl;

/// Input that counts lines when it is asked for them alone, which is when something is wrong.
class Input
    : public pegtl::memory_input<pegtl::tracking_mode::lazy, pegtl::eol::lf_crlf, std::string> {
public:
    using memory_input::memory_input;

    /// 1 at the beginning of a line: the one column that the grammar asks for.
    std::size_t column() const noexcept {
        return current() == begin() || *(current() - 1) == '\n' ? 1 : 2;
    }
};

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Whether `a` stands before, at (0) or behind `b`, whose case does not count.
int compare_tags(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shorter; ++i) {
        const int difference = lower(a[i]) - lower(b[i]);
        if (difference != 0) return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

bool tag_before(const CifItem* item, std::string_view tag) {
    return compare_tags(item->tag(), tag) < 0;
}

/// Takes what the grammar finds, in the order of the file.
struct Builder {
    CifDocument::Contents& contents;
    bool in_frame = false;                 // frames hold definitions, which are passed over
    std::string_view tag{};                // of the present item that is not in a loop
    std::vector<std::string_view> tags{};  // of the present loop
    const char* origin = nullptr;          // of the present loop
    std::size_t first = 0;                 // of its values

    void add_block(std::string_view name) {
        contents.blocks.push_back({name, contents.items.size()});
    }

    void begin_loop(const char* begin) {
        tags.clear();
        origin = begin;
        first = contents.values.size();
    }

    void add_pair(std::string_view value) {
        begin_loop(tag.data());
        tags.push_back(tag);
        contents.values.push_back(value);
        end_loop();
    }

    /// Returns whether each row is full.
    bool end_loop() {
        const std::size_t columns = tags.size();
        const std::size_t rows = (contents.values.size() - first) / columns;
        const bool is_full = contents.values.size() == first + rows * columns;
        for (std::size_t i = 0; i < columns && !in_frame; ++i) {
            contents.items.emplace_back(tags[i], origin, contents.values, first + i, columns, rows);
        }
        if (in_frame) contents.values.resize(first);
        return is_full;
    }
};

template <class Rule>
struct Action : pegtl::nothing<Rule> {};

/// An action that hands what has matched to the builder.
template <auto take>
struct Taken {
    template <class Match>
    static void apply(const Match& in, Builder& builder) {
        take(builder, in.string_view());
    }
};

void take_block(Builder& builder, std::string_view name) {
    builder.in_frame = false;
    builder.add_block(name.empty() ? "#" : name);
}
void take_global(Builder& builder, std::string_view /*text*/) { builder.add_block(""); }
void take_frame(Builder& builder, std::string_view /*name*/) { builder.in_frame = true; }
void take_frame_end(Builder& builder, std::string_view /*text*/) { builder.in_frame = false; }
void take_tag(Builder& builder, std::string_view tag) { builder.tag = tag; }
void take_value(Builder& builder, std::string_view value) { builder.add_pair(value); }
void take_loop(Builder& builder, std::string_view text) { builder.begin_loop(text.data()); }
void take_loop_tag(Builder& builder, std::string_view tag) { builder.tags.push_back(tag); }
void take_loop_value(Builder& builder, std::string_view value) {
    builder.contents.values.push_back(value);
}

// clang-format off
template <> struct Action<cif::rules::datablockname> : Taken<take_block> {};
template <> struct Action<cif::rules::str_global> : Taken<take_global> {};
template <> struct Action<cif::rules::framename> : Taken<take_frame> {};
template <> struct Action<cif::rules::endframe> : Taken<take_frame_end> {};
template <> struct Action<cif::rules::item_tag> : Taken<take_tag> {};
template <> struct Action<cif::rules::item_value> : Taken<take_value> {};
template <> struct Action<cif::rules::missing_value> : Taken<take_value> {};
template <> struct Action<cif::rules::str_loop> : Taken<take_loop> {};
template <> struct Action<cif::rules::loop_tag> : Taken<take_loop_tag> {};
template <> struct Action<cif::rules::loop_value> : Taken<take_loop_value> {};
// clang-format on

template <>
struct Action<cif::rules::loop> {
    template <class Match>
    static void apply(const Match& in, Builder& builder) {
        if (builder.end_loop()) return;
        throw pegtl::parse_error("Wrong number of values in the loop", in);
    }
};

}  // namespace

CifQuoting CifValue::quoting() const {
    switch (raw.empty() ? ' ' : raw.front()) {
        case '\'':
            return CifQuoting::single_quotes;
        case '"':
            return CifQuoting::double_quotes;
        case ';':
            return raw.find('\n') == std::string_view::npos ? CifQuoting::bare
                                                            : CifQuoting::text_field;
        default:
            return CifQuoting::bare;
    }
}

std::string CifValue::text() const {
    std::string text = cif::as_string(std::string(raw));
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return "";
    const bool single = text.find_first_not_of(" \t\r\n", first + 1) == std::string::npos;
    const bool is_none = single && (text[first] == '?' || text[first] == '.');
    return is_none ? "" : text;
}

CifBlock::CifBlock(std::string_view name, Items items) : name_(name), items_(std::move(items)) {
    std::stable_sort(items_.begin(), items_.end(),
                     [](const CifItem* a, const CifItem* b) { return tag_before(a, b->tag()); });
}

const CifItem* CifBlock::find(std::string_view tag) const {
    const auto item = std::lower_bound(items_.begin(), items_.end(), tag, tag_before);
    return item != items_.end() && compare_tags((*item)->tag(), tag) == 0 ? *item : nullptr;
}

CifBlock::Items CifBlock::find_all(std::string_view prefix) const {
    Items found;
    for (auto item = std::lower_bound(items_.begin(), items_.end(), prefix, tag_before);
         item != items_.end() && compare_tags((*item)->tag().substr(0, prefix.size()), prefix) == 0;
         ++item) {
        const bool repeated =
            !found.empty() && compare_tags(found.back()->tag(), (*item)->tag()) == 0;
        if (!(*item)->in_loop() && !repeated) found.push_back(*item);
    }
    return found;
}

CifBlock::Items CifBlock::repetitions() const {
    Items repeated;
    for (std::size_t i = 1; i < items_.size(); ++i) {
        if (compare_tags(items_[i - 1]->tag(), items_[i]->tag()) == 0) {
            repeated.push_back(items_[i]);
        }
    }
    std::sort(repeated.begin(), repeated.end());  // they stand in one vector
    return repeated;
}

CifDocument::CifDocument(std::string_view bytes) : bytes_(bytes) {
    bytes = without_byte_order_mark(bytes);
    Builder builder{contents_};
    try {
        // Not gemmi's own actions: they copy every value and lose where it stood.
        pegtl::parse<cif::rules::file, Action, cif::Errors>(Input(bytes.data(), bytes.size(), ""),
                                                            builder);
    } catch (const pegtl::parse_error& error) {
        const auto& places = error.positions();
        throw CifError(places.empty() ? 1 : places.front().line, std::string(error.message()));
    }
    if (contents_.blocks.empty()) throw CifError(1, "expected a data block");
}

CifBlock CifDocument::block(std::size_t index) const {
    const std::size_t first = contents_.blocks[index].first_item;
    const std::size_t end = index + 1 < contents_.blocks.size()
                                ? contents_.blocks[index + 1].first_item
                                : contents_.items.size();
    CifBlock::Items items;
    items.reserve(end - first);
    for (std::size_t i = first; i < end; ++i) items.push_back(&contents_.items[i]);
    return {contents_.blocks[index].name, std::move(items)};
}

unsigned long CifDocument::line_of(const char* place) const {
    if (line_ends_.empty()) {
        for (const char& c : bytes_) {
            if (c == '\n') line_ends_.push_back(&c);
        }
        line_ends_.push_back(bytes_.data() + bytes_.size());
    }
    const auto end = std::lower_bound(line_ends_.begin(), line_ends_.end(), place);
    return static_cast<unsigned long>(end - line_ends_.begin()) + 1;
}

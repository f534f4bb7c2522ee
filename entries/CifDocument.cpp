#include "entries/CifDocument.h"

#include <algorithm>

#include "entries/cif_rules.h"
#include "entries/cif_text.h"

namespace {

namespace pegtl = tao::pegtl;

constexpr char rows_not_full[] = "Wrong number of values in the loop";

/// What checks call what the grammar finds.
const char* code_of(const std::string& message) {
    if (message == rows_not_full) return "loop-not-full";
    return message.rfind("unterminated", 0) == 0 ? "not-terminated" : "not-cif";
}

/// Takes what the grammar finds, in the order of the file.
struct Builder {
    CifDocument::Contents& contents;
    bool in_frame = false;                 // frames hold definitions, which are passed over
    std::string_view tag{};                // of the present item that is not in a loop
    std::vector<std::string_view> tags{};  // of the present loop
    const char* origin = nullptr;          // of the present loop
    std::size_t first = 0;                 // of its values

    void add_block(std::string_view name, const char* heading) {
        contents.blocks.push_back({name, heading, contents.items.size(), contents.doubts.size()});
    }

    void begin_loop(const char* begin) {
        tags.clear();
        origin = begin;
        first = contents.values.size();
    }

    void add_pair(std::string_view value) {
        begin_loop(tag.data());
        tags.push_back(tag);
        add_value(value);
        end_loop();
    }

    void add_value(std::string_view value) {
        contents.values.push_back(value);
        if (value.substr(0, 1) != ";" || in_frame) return;
        const std::size_t line = value.find("\n;") + 1;
        if (value == ";") {
            contents.doubts.push_back({value.data(),
                                       "';' alone begins a text field only at the "
                                       "beginning of a line",
                                       "lone-semicolon"});
        } else if (line > 0 && line + 1 < value.size()) {
            contents.doubts.push_back({value.data() + line,
                                       "';' at the beginning of a line of a "
                                       "text field",
                                       "semicolon-in-field"});
        }
    }

    /// Returns whether each row is full.
    bool end_loop() {
        const std::size_t columns = tags.size();
        const std::size_t rows = (contents.values.size() - first) / columns;
        const bool is_full = contents.values.size() == first + rows * columns;
        for (std::size_t i = 0; i < columns && !in_frame; ++i) {
            contents.items.emplace_back(tags[i], origin, contents.values, first, i, columns, rows);
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
    builder.add_block(name.empty() ? "#" : name, name.data());
}
void take_global(Builder& builder, std::string_view text) { builder.add_block("", text.data()); }
void take_frame(Builder& builder, std::string_view /*name*/) { builder.in_frame = true; }
void take_frame_end(Builder& builder, std::string_view /*text*/) { builder.in_frame = false; }
void take_tag(Builder& builder, std::string_view tag) { builder.tag = tag; }
void take_value(Builder& builder, std::string_view value) { builder.add_pair(value); }
/// Where it could stand: behind its tag.
void take_missing(Builder& builder, std::string_view /*nothing*/) {
    builder.add_pair(builder.tag.substr(builder.tag.size()));
}
void take_loop(Builder& builder, std::string_view text) { builder.begin_loop(text.data()); }
void take_loop_tag(Builder& builder, std::string_view tag) { builder.tags.push_back(tag); }
void take_loop_value(Builder& builder, std::string_view value) { builder.add_value(value); }

// clang-format off
template <> struct Action<cif_rules::block_name> : Taken<take_block> {};
template <> struct Action<cif_rules::cif::str_global> : Taken<take_global> {};
template <> struct Action<cif_rules::frame_name> : Taken<take_frame> {};
template <> struct Action<cif_rules::frame_end> : Taken<take_frame_end> {};
template <> struct Action<cif_rules::item_tag> : Taken<take_tag> {};
template <> struct Action<cif_rules::item_value> : Taken<take_value> {};
template <> struct Action<cif_rules::missing_value> : Taken<take_missing> {};
template <> struct Action<cif_rules::cif::str_loop> : Taken<take_loop> {};
template <> struct Action<cif_rules::loop_tag> : Taken<take_loop_tag> {};
template <> struct Action<cif_rules::loop_value> : Taken<take_loop_value> {};
// clang-format on

template <>
struct Action<cif_rules::loop> {
    template <class Match>
    static void apply(const Match& in, Builder& builder) {
        if (builder.end_loop()) return;
        throw pegtl::parse_error(rows_not_full, in);
    }
};

/// What is wrong with a text field, if it is one that makes what stands at `place` unexpected.
const char* message_of_field(const Builder& builder, const char* place) {
    if (builder.contents.values.empty()) return nullptr;
    const std::string_view value = builder.contents.values.back();
    if (value == ";") return "expected text fields to begin with ';' at the beginning of a line";
    const CifQuoting quoting = CifValue{value}.quoting();
    const char* const end = value.data() + value.size();
    const bool follows = end <= place && std::find(end, place, '\n') == place;
    if (quoting != CifQuoting::text_field || !follows) return nullptr;
    return "expected a tag behind the text field, which ends at the ';' that begins this line";
}

/// Says what was expected.
template <class Rule>
struct Control : pegtl::normal<Rule> {
    static void raise(const cif_rules::Input& in, const Builder& builder) {
        const char* message = cif_rules::message<Rule>;
        if (std::is_same_v<Rule, cif_rules::end>) {
            const char* const of_field = message_of_field(builder, in.current());
            if (of_field) message = of_field;
        }
        throw pegtl::parse_error(message ? message : "parse error", in);
    }
};

}  // namespace

CifDocument::CifDocument(std::string_view bytes) : bytes_(bytes) {
    bytes = without_byte_order_mark(bytes);
    Builder builder{contents_};
    try {
        // Not gemmi's own actions: they copy every value and lose where it stood.
        pegtl::parse<cif_rules::file, Action, Control>(cif_rules::Input(bytes), builder);
    } catch (const pegtl::parse_error& error) {
        const std::size_t place = error.positions().front().byte;
        const std::string message(error.message());
        throw CifError(line_of(bytes.data() + place), message, code_of(message),
                       column_of(bytes.data() + place));
    }
    if (contents_.blocks.empty()) throw CifError(1, "expected a data block", "not-cif", 1);
}

std::size_t CifDocument::end_of_items(std::size_t block) const {
    return block + 1 < blocks() ? contents_.blocks[block + 1].first_item : contents_.items.size();
}

CifBlock::Items CifDocument::items(std::size_t index) const {
    const std::size_t first = contents_.blocks[index].first_item;
    CifBlock::Items items;
    items.reserve(end_of_items(index) - first);
    for (std::size_t i = first; i < end_of_items(index); ++i) items.push_back(&contents_.items[i]);
    return items;
}

CifBlock CifDocument::block(std::size_t index) const { return {name_of(index), items(index)}; }

CifBlock CifDocument::common_block(std::size_t first, std::size_t last) const {
    constexpr std::size_t most = 10000;
    CifBlock::Items items;
    for (std::size_t i = contents_.blocks[first].first_item; i < end_of_items(last - 1); ++i) {
        const CifItem& item = contents_.items[i];
        if (items.size() < most && item.size() <= most && item.has_text()) items.push_back(&item);
    }
    return {contents_.blocks[first].name, std::move(items)};
}

std::size_t CifDocument::block_at(const char* place) const {
    const auto behind = std::upper_bound(
        contents_.blocks.begin(), contents_.blocks.end(), place,
        [](const char* at, const Contents::Block& block) { return at < block.heading; });
    return static_cast<std::size_t>(behind - contents_.blocks.begin()) - 1;
}

std::vector<CifDocument::Doubt> CifDocument::doubts(std::size_t index) const {
    const std::size_t first = contents_.blocks[index].first_doubt;
    const std::size_t end = index + 1 < contents_.blocks.size()
                                ? contents_.blocks[index + 1].first_doubt
                                : contents_.doubts.size();
    const Doubt* const doubts = contents_.doubts.data();
    return {doubts + first, doubts + end};
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

bool CifDocument::is_version_2() const {
    return cif_rules::Input(without_byte_order_mark(bytes_)).is_version_2();
}

const char* CifDocument::end_of_heading(std::size_t index) const {
    const Contents::Block& block = contents_.blocks[index];
    const bool has_name = block.name.data() == block.heading;  // else "data_" or "global_"
    if (has_name) return block.heading + block.name.size();
    const bool is_global = block.name.empty();
    return block.heading + (is_global ? std::string_view("global_").size() : 0);
}

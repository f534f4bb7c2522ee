#include "entries/CifDocument.h"

#include <algorithm>

#include "entries/cif_rules.h"
#include "entries/cif_text.h"

namespace {

namespace pegtl = tao::pegtl;

constexpr char rows_not_full[] = "Wrong number of values in the loop";
constexpr std::string_view unterminated = "unterminated";

/// Takes what the grammar finds, in the order of the file.
struct Builder {
    CifDocument::Contents& contents;
    bool in_frame = false;                 // frames hold definitions, which are passed over
    std::string_view tag{};                // of the present item that is not in a loop
    std::vector<std::string_view> tags{};  // of the present loop
    const char* origin = nullptr;          // of the present loop
    const char* opening = nullptr;         // of the present value in quotes or text field
    std::size_t first = 0;                 // of its values
    std::size_t values_of_loop = 0;        // of the last one that has ended

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
        if (!value.empty() && value.front() == ';' && !in_frame) add_doubts(value);
    }

    void add_doubts(std::string_view value) {
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
        values_of_loop = contents.values.size() - first;
        const std::size_t rows = values_of_loop / columns;
        for (std::size_t i = 0; i < columns && !in_frame; ++i) {
            contents.items.emplace_back(tags[i], origin, contents.values, first, i, columns, rows);
        }
        if (in_frame) contents.values.resize(first);
        return values_of_loop == rows * columns;
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

template <class Rule>
constexpr std::string_view message_of = cif_rules::message<Rule> ? cif_rules::message<Rule> : "";

/// Says what was expected.
template <class Rule>
struct Control : pegtl::normal<Rule> {
    static void start(const cif_rules::Input& in, Builder& builder) {
        if constexpr (message_of<Rule>.substr(0, unterminated.size()) == unterminated) {
            const bool is_triple = message_of<Rule>.find("triple") != std::string_view::npos;
            builder.opening = in.current() - (is_triple ? 3 : 1);
        }
    }
    static void raise(const cif_rules::Input& in, const Builder& builder) {
        const char* message = cif_rules::message<Rule>;
        if (std::is_same_v<Rule, cif_rules::end>) {
            const char* const of_field = message_of_field(builder, in.current());
            if (of_field) message = of_field;
        }
        throw pegtl::parse_error(message ? message : "parse error", in);
    }
};

/// What checks tell of it, and where: what does not end stands before the place.
Problem problem_of(const Builder& builder, const std::string& message, std::string_view bytes,
                   std::size_t& place) {
    Problem problem;
    problem.code = "not-cif";
    if (!builder.contents.blocks.empty()) problem.block = builder.contents.blocks.back().name;
    if (message == rows_not_full) {
        problem.code = "loop-not-full";
        problem.item = in_lower_case(builder.tags.front());
        problem.found = std::to_string(builder.values_of_loop).append(" values");
        problem.expected = "rows of ";
        problem.expected += std::to_string(builder.tags.size());
    } else if (message.rfind(unterminated, 0) == 0) {
        problem.code = "not-terminated";
        const bool is_list = message.find("list") != std::string::npos;  // told where it begins
        if (!is_list) place = static_cast<std::size_t>(builder.opening - bytes.data());
        const std::string_view rest = bytes.substr(place);
        problem.found = rest.substr(0, rest.find_first_of("\r\n"));
    } else {
        problem.what = message;
    }
    return problem;
}

}  // namespace

CifDocument::CifDocument(std::string_view bytes) : bytes_(bytes) {
    bytes = without_byte_order_mark(bytes);
    Builder builder{contents_};
    try {
        // Not gemmi's own actions: they copy every value and lose where it stood.
        pegtl::parse<cif_rules::file, Action, Control>(cif_rules::Input(bytes), builder);
    } catch (const pegtl::parse_error& error) {
        std::size_t place = error.positions().front().byte;
        const std::string message(error.message());
        const unsigned long line = line_of(bytes.data() + place);
        Problem problem = problem_of(builder, message, bytes, place);
        problem.line = line_of(bytes.data() + place);
        problem.column = column_of(bytes.data() + place);
        throw CifError(line, message, std::move(problem));
    }
    if (!contents_.blocks.empty()) return;
    Problem problem;
    problem.code = "not-cif";
    problem.line = problem.column = 1;
    throw CifError(1, "expected a data block", std::move(problem));
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
    return {contents_.blocks[first].name, items};
}

std::vector<CifDocument::Doubt> CifDocument::doubts(std::size_t index) const {
    const std::size_t first = contents_.blocks[index].first_doubt;
    const std::size_t end = index + 1 < contents_.blocks.size()
                                ? contents_.blocks[index + 1].first_doubt
                                : contents_.doubts.size();
    const Doubt* const doubts = contents_.doubts.data();
    return {doubts + first, doubts + end};
}

bool CifDocument::is_version_2() const {
    return cif_rules::Input(without_byte_order_mark(bytes_)).is_version_2();
}

#pragma once

#include <algorithm>
#include <cstddef>
#include <gemmi/cif.hpp>
#include <string_view>

#include "entries/end_of_brackets.h"

/// The grammar of CIF files, of both versions; the second is told by the first line. Rules are
/// gemmi's where they are the same.
namespace cif_rules {

namespace cif = gemmi::cif::rules;
namespace pegtl = tao::pegtl;

/// The bytes of a file. Lines are counted when somebody asks, which is when something is wrong.
class Input
    : public pegtl::memory_input<pegtl::tracking_mode::lazy, pegtl::eol::lf_crlf, std::string> {
public:
    explicit Input(std::string_view bytes)
        : memory_input(bytes.data(), bytes.size(), ""),
          is_version_2_(bytes.substr(0, magic.size()) == magic) {}

    bool is_version_2() const { return is_version_2_; }
    /// 1 at the beginning of a line: the one column that the grammar asks for.
    std::size_t column() const noexcept {
        const bool begins_line =
            current() == begin() || *(current() - 1) == '\n' || *(current() - 1) == '\r';
        return begins_line ? 1 : 2;
    }

private:
    static constexpr std::string_view magic = "#\\#CIF_2.0";

    bool is_version_2_;
};

/// One rule in files of version 1 and another in those of version 2.
template <class First, class Second>
struct by_version {
    template <pegtl::apply_mode A, pegtl::rewind_mode M, template <class...> class Action,
              template <class...> class Control, class... States>
    static bool match(Input& in, States&&... states) {
        return in.is_version_2() ? pegtl::match<Second, A, M, Action, Control>(in, states...)
                                 : pegtl::match<First, A, M, Action, Control>(in, states...);
    }
};

// clang-format off
struct comment : pegtl::if_must<pegtl::one<'#'>, pegtl::until<pegtl::sor<pegtl::one<'\n', '\r'>, pegtl::eof>>> {};
struct whitespace : pegtl::plus<pegtl::sor<cif::ws_char, comment>> {};
struct ws_or_eof : pegtl::sor<whitespace, pegtl::eof> {};

// clang-format on

/// Prose has lines that begin with a semicolon; one that ends the field stands alone. Looks from
/// semicolon to semicolon, as most of a text is none.
struct field_tail {
    static bool match(Input& in) {
        while (!in.empty()) {
            const std::string_view rest(in.current(), in.size());
            const std::size_t at = std::min(rest.find(';'), rest.size());
            in.bump(at);
            const bool begins_line = in.column() == 1;
            if (at < rest.size()) in.bump(1);
            constexpr std::string_view enders = " \n\r\t#";
            const bool stands_alone = in.empty() || enders.find(*in.current()) != enders.npos;
            if (at < rest.size() && begins_line && stands_alone) return true;
        }
        return false;
    }
};

/// A value of ordinary characters alone, as numbers and labels are: cif::simunq without a rule for
/// each character.
struct ordinary_value {
    static bool match(Input& in) {
        constexpr int ordinary = 1, white_space = 2;
        const char* end = in.current();
        while (end != in.end() && gemmi::cif::char_table(*end) == ordinary) ++end;
        const auto size = static_cast<std::size_t>(end - in.current());
        if (size == 0 || end == in.end() || gemmi::cif::char_table(*end) != white_space) {
            return false;
        }
        in.bump(size);
        return true;
    }
};

// clang-format off
struct text_field : pegtl::if_must<cif::field_sep, field_tail> {};
struct value_1 : pegtl::sor<ordinary_value, cif::singlequoted, cif::doublequoted, text_field, cif::unquoted> {};

struct nonblank_2 : pegtl::not_one<' ', '\t', '\n', '\r', '\0', '\x7f'> {};
template <char Quote> struct triple_tail : pegtl::until<pegtl::string<Quote, Quote, Quote>> {};
template <char Quote> struct triple_quoted : pegtl::if_must<pegtl::string<Quote, Quote, Quote>, triple_tail<Quote>> {};
template <char Quote> struct quoted_tail : pegtl::until<pegtl::one<Quote>, pegtl::not_one<'\n', '\r'>> {};
template <char Quote> struct quoted : pegtl::if_must<pegtl::one<Quote>, quoted_tail<Quote>> {};
struct unquoted_2 : pegtl::seq<pegtl::not_at<cif::keyword>, pegtl::not_at<pegtl::one<'_', '$', '#', ']', '}'>>, pegtl::plus<nonblank_2>> {};
// clang-format on

/// A list or a table with all that stands in it.
struct brackets {
    static bool match(Input& in) {
        const std::string_view rest(in.current(), in.size());
        if (rest.empty() || (rest[0] != '[' && rest[0] != '{')) return false;
        const std::size_t end = end_of_brackets(rest);
        if (end == std::string_view::npos) {
            throw pegtl::parse_error("unterminated list or table", in);
        }
        in.bump(end);
        return true;
    }
};

// clang-format off
struct value_2 : pegtl::sor<triple_quoted<'\''>, triple_quoted<'"'>, quoted<'\''>, quoted<'"'>, text_field, brackets, unquoted_2> {};
struct value : by_version<value_1, value_2> {};

struct tag : by_version<cif::tag, pegtl::seq<pegtl::one<'_'>, pegtl::plus<nonblank_2>>> {};
struct block_name : by_version<pegtl::star<cif::nonblank_ch>, pegtl::star<nonblank_2>> {};
struct block_heading : pegtl::sor<pegtl::seq<cif::str_data, block_name>, cif::str_global> {};
struct item_tag : tag {};
struct item_value : value {};
struct loop_tag : tag {};
struct loop_value : value {};
struct missing_value : pegtl::bol {};
struct value_end : ws_or_eof {};
struct value_or_none : pegtl::sor<pegtl::seq<item_value, pegtl::must<value_end>>, missing_value> {};
struct loop_values : pegtl::sor<pegtl::plus<pegtl::seq<loop_value, pegtl::must<value_end>>>,
                                pegtl::at<pegtl::sor<cif::keyword, pegtl::eof>>> {};  // none: wrong, but seen
struct loop_tags : pegtl::plus<pegtl::seq<loop_tag, whitespace>> {};
struct loop : pegtl::if_must<cif::str_loop, whitespace, loop_tags, loop_values, pegtl::opt<cif::str_stop, ws_or_eof>> {};
struct item_tag_end : whitespace {};
struct item : pegtl::if_must<item_tag, item_tag_end, value_or_none> {};
struct frame_name : pegtl::plus<cif::nonblank_ch> {};
struct frame_end : cif::str_save {};
struct frame : pegtl::if_must<cif::str_save, frame_name, whitespace, pegtl::star<pegtl::sor<item, loop>>, frame_end, ws_or_eof> {};
struct block : pegtl::seq<block_heading, ws_or_eof, pegtl::star<pegtl::sor<item, loop, frame>>> {};
struct content : pegtl::plus<block> {};
struct end : pegtl::eof {};
struct file : pegtl::seq<pegtl::opt<whitespace>, pegtl::if_must<pegtl::not_at<pegtl::eof>, content, end>> {};
// clang-format on

/// What is wrong where a rule that must match does not.
template <class Rule>
inline constexpr const char* message = nullptr;

template <>
inline constexpr const char* message<cif::quoted_tail<pegtl::one<'\''>>> = "unterminated 'string'";
template <>
inline constexpr const char* message<quoted_tail<'\''>> = "unterminated 'string'";
template <>
inline constexpr const char* message<cif::quoted_tail<pegtl::one<'"'>>> = "unterminated \"string\"";
template <>
inline constexpr const char* message<quoted_tail<'"'>> = "unterminated \"string\"";
template <char quote>
inline constexpr const char* message<triple_tail<quote>> = "unterminated string in triple quotes";
template <>
inline constexpr const char* message<field_tail> = "unterminated text field";
template <>
inline constexpr const char* message<value_end> = "expected a blank behind the value";
template <>
inline constexpr const char* message<item_tag_end> = "expected a value behind the tag";
template <>
inline constexpr const char* message<value_or_none> = "expected a value";
template <>
inline constexpr const char* message<loop_tags> = "expected a tag behind loop_";
template <>
inline constexpr const char* message<loop_values> = "expected a value or a tag in the loop";
template <>
inline constexpr const char* message<frame_name> = "unnamed save_ frame";
template <>
inline constexpr const char* message<frame_end> = "expected a tag, loop_ or save_";
template <>
inline constexpr const char* message<content> = "expected block header (data_)";
template <>
inline constexpr const char* message<end> = "expected a tag, loop_ or data_";

}  // namespace cif_rules

#include "markup/AnsiRichTextGenerator.h"

#include <algorithm>
#include <array>
#include <vector>

#include "markup/AnsiTagFactory.h"
#include "markup/controls.h"

namespace {

constexpr char escape = '\x1b';

/// Writes text with the styles in force, each selected only where the text needs it.
class Terminal {
public:
    Terminal(std::string& result, const RichTextTagFactory& factory)
        : result_(result),
          styles_{{{factory.start_bold(), factory.end_bold(), {}, {}},
                   {factory.start_italic(), factory.end_italic(), {}, {}},
                   {factory.start_overstrike(), factory.end_overstrike(), {}, {}},
                   {any_color, factory.end_color(), {}, {}}}} {}

    /// Takes a tag, which must live as long as this.
    void select(std::string_view tag) {
        for (Style& style : styles_) {
            if (tag == style.end) {
                if (!style.open.empty()) style.open.pop_back();
                return;
            }
            if (tag == style.start || style.start == any_color) {
                style.open.push_back(tag);
                return;
            }
        }
    }

    /// Writes text without line ends.
    void write(std::string_view text) {
        for (Style& style : styles_) {
            const std::string_view wanted = style.open.empty() ? "" : style.open.back();
            if (wanted == style.shown) continue;
            result_ += wanted.empty() ? style.end : wanted;
            style.shown = wanted;
        }
        result_ += text;
    }

    void reset() {
        const bool plain = std::all_of(styles_.begin(), styles_.end(),
                                       [](const Style& style) { return style.shown.empty(); });
        if (!plain) result_ += "\x1b[0m";
        for (Style& style : styles_) style.shown = {};
    }

private:
    static constexpr char any_color[] = "";

    struct Style {
        std::string start, end;
        std::vector<std::string_view> open;  // by their start tags, the innermost last
        std::string_view shown;              // what the terminal shows, empty: nothing special
    };

    std::string& result_;
    std::array<Style, 4> styles_;
};

}  // namespace

AnsiRichTextGenerator::AnsiRichTextGenerator()
    : UnicodeRichTextGenerator(make_handle<AnsiTagFactory>()) {}

AnsiRichTextGenerator::~AnsiRichTextGenerator() = default;

void AnsiRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    append_text(result, text, printable_ascii,
                [&](std::string_view rest) { return append_shown(result, rest); });
}

void AnsiRichTextGenerator::append_invisible_tag(std::string& result,
                                                 const std::string& tag) const {
    result += tag;
}

// The tags are all that begins with an escape character, and end with the letter m.
std::string AnsiRichTextGenerator::compose(std::string_view text,
                                           const std::vector<Tag>& tags) const {
    std::string tagged = UnicodeRichTextGenerator::compose(text, tags);
    if (tagged.find(escape) == std::string::npos) return tagged;
    std::string result;
    result.reserve(tagged.size());
    Terminal terminal(result, tag_factory());
    std::string_view rest = tagged;
    while (!rest.empty()) {
        std::size_t end = 1;
        if (rest.front() == escape) {
            end = std::min(rest.find('m'), rest.size() - 1) + 1;
            terminal.select(rest.substr(0, end));
        } else if (rest.front() == '\n') {
            terminal.reset();
            result += '\n';
        } else {
            end = std::min(rest.find_first_of("\x1b\n"), rest.size());
            terminal.write(rest.substr(0, end));
        }
        rest.remove_prefix(end);
    }
    terminal.reset();
    return result;
}

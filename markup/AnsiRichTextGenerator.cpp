#include "markup/AnsiRichTextGenerator.h"

#include <algorithm>
#include <array>
#include <vector>

#include "markup/AnsiTagFactory.h"
#include "markup/internal/controls.h"

namespace {

using Tag = TwoPassRichTextGenerator::Tag;
using Kind = TextItemStyle::Kind;

/// Writes text with the styles in force, each selected only where the text needs it.
class Terminal {
public:
    explicit Terminal(std::string& result) : result_(result) {}

    /// Takes a tag, which must live as long as this.
    void select(const Tag& tag) {
        Style& style =
            *std::find_if(styles_.begin(), styles_.end() - 1,
                          [&](const Style& candidate) { return candidate.kind == tag.kind; });
        if (tag.opens) {
            style.open.push_back(tag.text);
        } else {
            style.open.pop_back();
            style.end = tag.text;
        }
    }

    /// Writes text with the styles, which hold for one line after the other.
    void write(std::string_view text) {
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            if (end > 0) write_in_line(text.substr(0, end));
            if (end == text.size()) return;
            reset();
            result_ += '\n';
            text.remove_prefix(end + 1);
        }
    }

    void reset() {
        const bool plain = std::all_of(styles_.begin(), styles_.end(),
                                       [](const Style& style) { return style.shown.empty(); });
        if (!plain) result_ += "\x1b[0m";
        for (Style& style : styles_) style.shown = {};
    }

private:
    struct Style {
        Kind kind;
        std::vector<std::string_view> open{};  // by their start tags, the innermost last
        std::string_view end{};                // the tag of the one that closed last
        std::string_view shown{};              // what the terminal shows, empty: nothing special
    };

    void write_in_line(std::string_view text) {
        for (Style& style : styles_) {
            const std::string_view wanted = style.open.empty() ? "" : style.open.back();
            if (wanted == style.shown) continue;
            result_ += wanted.empty() ? style.end : wanted;
            style.shown = wanted;
        }
        result_ += text;
    }

    std::string& result_;
    std::array<Style, 5> styles_{{{Kind::bold},
                                  {Kind::italic},
                                  {Kind::overstrike},
                                  {Kind::color},
                                  {Kind::other}}};  // the last takes what is left
};

}  // namespace

AnsiRichTextGenerator::AnsiRichTextGenerator()
    : UnicodeRichTextGenerator(make_handle<AnsiTagFactory>()) {}

AnsiRichTextGenerator::~AnsiRichTextGenerator() = default;

void AnsiRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    append_text(result, text, printable_ascii,
                [&](std::string_view rest) { return append_shown(result, rest); });
}

std::string AnsiRichTextGenerator::compose(std::string_view text,
                                           const std::vector<Tag>& tags) const {
    std::vector<Tag> selections;
    std::string plain = compose_text(text, tags, selections);
    if (selections.empty()) return plain;
    std::string result;
    result.reserve(plain.size() + 8 * selections.size());
    Terminal terminal(result);
    const std::string_view characters = plain;
    std::size_t written = 0;
    for (const Tag& selection : selections) {
        terminal.write(characters.substr(written, selection.position - written));
        written = selection.position;
        terminal.select(selection);
    }
    terminal.write(characters.substr(written));
    terminal.reset();
    return result;
}

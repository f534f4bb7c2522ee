#include "markup/UnicodeRichTextGenerator.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "markup/TextItemToUnicodeGreek.h"
#include "markup/UnicodeTagFactory.h"
#include "markup/Utf8.h"
#include "markup/internal/controls.h"
#include "markup/internal/script_forms.h"
#include "text/Position.h"

namespace {

constexpr std::string_view overline = "\u0305";

using Script = char32_t ScriptForms::*;

/// Null for what is not a script.
Script script_of(TextItemStyle::Kind kind) {
    if (kind == TextItemStyle::Kind::superscript) return &ScriptForms::superscript;
    return kind == TextItemStyle::Kind::subscript ? &ScriptForms::subscript : nullptr;
}

/// The form of the character at the front of `text`, or 0.
char32_t script_form(std::string_view text, Script script) {
    const ScriptForms* const forms = script_forms_of(first_character(text).code);
    return forms ? forms->*script : 0;
}

bool has_script_forms(std::string_view text, Script script) {
    while (!text.empty()) {
        if (script_form(text, script) == 0) return false;
        text.remove_prefix(first_character(text).size);
    }
    return true;
}

/// For the two tags of each script that is written in characters of its own: which. Null for
/// others.
std::vector<Script> scripts_with_forms(std::string_view text,
                                       const std::vector<TwoPassRichTextGenerator::Tag>& tags) {
    std::vector<Script> scripts(tags.size(), nullptr);
    std::size_t innermost = tags.size();  // the script that stands open with none inside so far
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const std::size_t start = tags[i].opens ? i : tags[i].partner;
        const Script script = script_of(tags[i].kind);
        if (!script) continue;
        const std::size_t from = tags[start].position;
        if (i != start && innermost == start &&
            has_script_forms(text.substr(from, tags[i].position - from), script)) {
            scripts[start] = scripts[i] = script;
        }
        innermost = i == start ? i : tags.size();
    }
    return scripts;
}

/// Breaks lines of what is put into it after the columns that a reader counts.
class Lines {
public:
    Lines(std::string& result, unsigned int length, std::string line_break)
        : result_(result), length_(length), line_break_(std::move(line_break)) {}

    /// Appends what may not be broken; before it, where it does not fit on the line.
    void put(std::string_view text, unsigned int columns) {
        if (length_ != 0 && column_ != 0 && columns > length_ - column_) break_line();
        result_ += text;
        column_ += columns;
        if (length_ != 0 && column_ >= length_) break_line();
    }

    /// Appends a line end of the text.
    void end_line() {
        result_ += '\n';
        column_ = 0;
    }

private:
    void break_line() {
        result_ += line_break_;
        column_ = 0;
    }

    std::string& result_;
    unsigned int length_;
    std::string line_break_;
    unsigned int column_ = 0;
};

}  // namespace

UnicodeRichTextGenerator::UnicodeRichTextGenerator()
    : UnicodeRichTextGenerator(make_handle<UnicodeTagFactory>()) {}

UnicodeRichTextGenerator::UnicodeRichTextGenerator(THandle<RichTextTagFactory> tag_factory)
    : TwoPassRichTextGenerator(std::move(tag_factory), make_handle<TextItemToUnicodeGreek>()) {}

UnicodeRichTextGenerator::~UnicodeRichTextGenerator() = default;

// The lines can be broken only when it is known how the scripts are written.
std::string UnicodeRichTextGenerator::mark_up_text(const RichTextData& data) const {
    line_length_ = data.line_length();
    if (line_length_ == 0) return TwoPassRichTextGenerator::mark_up_text(data);
    return TwoPassRichTextGenerator::mark_up_text(RichTextData(data.characters(), 0, data.styles(),
                                                               data.invisible(), data.greek(),
                                                               data.replacement_text()));
}

void UnicodeRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    append_text(result, text, printable_ascii, [&](std::string_view rest) -> std::size_t {
        if (rest.front() != '\t') return append_shown(result, rest);
        result += '\t';
        return 1;
    });
}

std::string UnicodeRichTextGenerator::compose(std::string_view text,
                                              const std::vector<Tag>& tags) const {
    std::vector<Tag> left_out;
    return compose_text(text, tags, left_out);
}

std::string UnicodeRichTextGenerator::compose_text(std::string_view text,
                                                   const std::vector<Tag>& tags,
                                                   std::vector<Tag>& left_out) const {
    if (tags.empty() && line_length_ == 0) return std::string(text);
    const std::vector<Script> scripts = scripts_with_forms(text, tags);
    std::string result;
    result.reserve(text.size() + 8 * tags.size());
    Lines lines(result, line_length_, tag_factory().line_break());
    Script script = nullptr;
    unsigned int bars = 0;
    const auto write = [&](std::string_view characters) {
        if (!script && bars == 0 && line_length_ == 0) {
            result += characters;
            return;
        }
        std::string unit;
        while (!characters.empty()) {
            const bool ends_line = characters.front() == '\n';
            const std::size_t size = ends_line ? 1 : end_of_character(characters);
            unit = characters.substr(0, size);
            if (script) {
                unit.clear();
                append_utf8(unit, script_form(characters, script));
            }
            if (bars > 0) unit += overline;
            if (ends_line) {
                lines.end_line();
            } else {
                lines.put(unit, 1);
            }
            characters.remove_prefix(size);
        }
    };

    std::size_t written = 0;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const Tag& tag = tags[i];
        write(text.substr(written, tag.position - written));
        written = tag.position;
        if (scripts[i]) {
            script = tag.opens ? scripts[i] : nullptr;
        } else if (script_of(tag.kind)) {
            lines.put(tag.text, length_of(tag.text));
        } else {
            if (tag.kind == TextItemStyle::Kind::overstrike) bars = tag.opens ? bars + 1 : bars - 1;
            left_out.push_back(tag);
            left_out.back().position = result.size();
        }
    }
    write(text.substr(written));
    return result;
}

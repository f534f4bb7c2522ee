#include "output/JsonWriter.h"

#include "markup/Utf8.h"
#include "markup/internal/controls.h"
#include "markup/internal/size_of_run.h"
#include "output/harmless_json.h"

namespace {

/// Whether a text needs no escapes but those of append_harmless(), and is UTF-8.
bool is_plain(std::string_view text) {
    static constexpr std::array<bool, 256> stands_for_itself = ascii_but("\"\\");
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (stands_for_itself[byte]) {
            ++i;
            continue;
        }
        if (byte < 0x80) return false;
        const Utf8Character character = first_character(text.substr(i));
        if (!character.valid) return false;
        i += character.size;
    }
    return true;
}

}  // namespace

void JsonWriter::add_text(const char* name, std::string_view text) {
    static constexpr std::array<bool, 256> never_escaped = ascii_but("\"\\<");
    begin_value(name);
    if (size_of_run(text, never_escaped) == text.size()) {  // as most
        json_ += '"';
        json_ += text;
        json_ += '"';
        return;
    }
    if (!is_plain(text)) {
        json_ += harmless_json(text, false);
        return;
    }
    json_ += '"';
    append_harmless(json_, text);
    json_ += '"';
}

void JsonWriter::add_integer(const char* name, std::int64_t number) {
    add_word(name, std::to_string(number));
}

void JsonWriter::add_number(const char* name, double number) {
    add_word(name, harmless_json(number, false));
}

void JsonWriter::begin(const char* name, char bracket) {
    begin_value(name);
    json_ += bracket;
    ++depth_;
    is_first_ = true;
}

void JsonWriter::end(char bracket) {
    --depth_;
    if (!is_first_) begin_line(false);
    json_ += bracket;
    is_first_ = false;
}

void JsonWriter::begin_value(const char* name) {
    if (depth_ > 0) {
        begin_line(!is_first_);
    } else if (!is_first_) {
        json_ += ',';
    }
    if (name) {
        json_ += '"';
        json_ += name;
        json_.append("\": ", 3);
    }
    is_first_ = false;
}

/// A line end and the indent, which few lines have more of than is written at once.
void JsonWriter::begin_line(bool after_comma) {
    constexpr std::string_view line = ",\n                ";
    const std::size_t size = depth_ + 2;
    const std::size_t from = after_comma ? 0 : 1;
    json_ += line.substr(from, size - from);
    if (size > line.size()) json_.append(size - line.size(), ' ');
}

void JsonWriter::add_word(const char* name, std::string_view word) {
    begin_value(name);
    json_ += word;
}

#include "output/JsonWriter.h"

#include <algorithm>

#include "output/harmless_json.h"

namespace {

/// Whether a character of a text needs no escape, or only that of append_harmless().
bool is_plain(char c) { return c >= ' ' && c < 0x7F && c != '"' && c != '\\'; }

}  // namespace

void JsonWriter::add_text(const char* name, std::string_view text) {
    begin_value(name);
    if (!std::all_of(text.begin(), text.end(), is_plain)) {
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
    if (!is_first_) begin_line();
    json_ += bracket;
    is_first_ = false;
}

void JsonWriter::begin_value(const char* name) {
    if (!is_first_) json_ += ',';
    if (depth_ > 0) begin_line();
    if (name) json_.append(1, '"').append(name).append("\": ");
    is_first_ = false;
}

void JsonWriter::add_word(const char* name, std::string_view word) {
    begin_value(name);
    json_ += word;
}

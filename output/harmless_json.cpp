#include "output/harmless_json.h"

#include <algorithm>

#include "markup/Utf8.h"
#include "markup/internal/controls.h"

void append_harmless(std::string& result, std::string_view json) {
    const auto may_act = [](char c) { return c == '<' || static_cast<unsigned char>(c) >= 0x7F; };
    while (true) {
        const auto next = std::find_if(json.begin(), json.end(), may_act);
        const auto plain = static_cast<std::size_t>(next - json.begin());
        result += json.substr(0, plain);
        json.remove_prefix(plain);
        if (json.empty()) return;
        const Utf8Character character = first_character(json);
        const char32_t code = character.code;
        const bool ends_line = code == 0x2028 || code == 0x2029;    // to JavaScript of old
        const bool acts = code >= 0x7F && !is_harmless(character);  // others it has escaped
        if (acts || ends_line || json.starts_with("<!--")) {
            result += "\\u";
            append_hexadecimal(result, code, 4);
        } else {
            result += json.substr(0, character.size);
            if (json.starts_with("</")) result += '\\';
        }
        json.remove_prefix(character.size);
    }
}

std::string harmless_json(const nlohmann::ordered_json& json, bool in_lines) {
    const std::string written =
        json.dump(in_lines ? 1 : -1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    std::string result;
    result.reserve(written.size());
    append_harmless(result, written);
    return result;
}

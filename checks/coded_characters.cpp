#include "checks/coded_characters.h"

#include <algorithm>

#include "entries/CodedText.h"
#include "entries/cif_text.h"
#include "markup/Utf8.h"

std::optional<std::string> in_ascii(std::string_view character) {
    std::string codes = with_codes(CodedText(std::string(character)).unicode(), false);
    const bool is_coded = std::all_of(codes.begin(), codes.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x80 && c != '&' && c != '<' && c != '>';
    });
    if (!is_coded) return std::nullopt;
    return codes;
}

std::optional<std::string> text_in_ascii(std::string_view text) {
    std::string codes;
    for (std::string_view rest = text; !rest.empty();) {
        const Utf8Character character = first_character(rest);
        if (character.code < 0x80) {
            codes += rest.front();
        } else {
            const std::optional<std::string> code = in_ascii(rest.substr(0, character.size));
            if (!code) return std::nullopt;
            codes += *code;
        }
        rest.remove_prefix(character.size);
    }
    if (!say_the_same(text, codes)) return std::nullopt;
    return codes;
}

bool say_the_same(std::string_view a, std::string_view b) {
    return CodedText(one_line(a)).unicode() == CodedText(one_line(b)).unicode();
}

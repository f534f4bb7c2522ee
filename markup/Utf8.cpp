#include "markup/Utf8.h"

#include <algorithm>

namespace {

constexpr char32_t replacement_character = 0xFFFD;

/// The bytes of a character beyond ASCII by its first one; 0 where no character begins so.
std::size_t size_by_lead(unsigned char lead) {
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    return lead < 0xF5 ? 4 : 0;
}

/// Whether the byte may follow the lead: neither overlong nor a surrogate nor beyond U+10FFFF.
bool may_follow(unsigned char lead, unsigned char second) {
    switch (lead) {
        case 0xE0:
            return second >= 0xA0;
        case 0xED:
            return second < 0xA0;
        case 0xF0:
            return second >= 0x90;
        case 0xF4:
            return second < 0x90;
        default:
            return true;
    }
}

}  // namespace

Utf8Character first_character(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) return {lead, 1, true};
    const std::size_t size = size_by_lead(lead);
    char32_t code = lead & (0x7FU >> size);
    std::size_t read = 1;
    for (; read < size && read < text.size() && is_continuation_byte(text[read]); ++read) {
        const auto byte = static_cast<unsigned char>(text[read]);
        if (read == 1 && !may_follow(lead, byte)) break;
        code = code << 6 | (byte & 0x3FU);
    }
    if (read != size) return {replacement_character, read, false};
    return {code, size, true};
}

std::size_t end_of_character(std::string_view text) {
    std::size_t end = first_character(text).size;
    while (end < text.size() && static_cast<unsigned char>(text[end]) >= 0x80) {
        const Utf8Character next = first_character(text.substr(end));
        if (!combines(next.code)) break;
        end += next.size;
    }
    return end;
}

unsigned int start_of_character(std::string_view text, unsigned int position) {
    if (position >= text.size() || !is_continuation_byte(text[position])) return position;
    const unsigned int earliest = position - std::min(position, 3U);
    for (unsigned int start = position; start-- > earliest;) {
        if (is_continuation_byte(text[start])) continue;
        const Utf8Character character = first_character(text.substr(start));
        return character.valid && start + character.size > position ? start : position;
    }
    return position;
}

void append_utf8(std::string& result, char32_t code) {
    const auto put = [&result](char32_t byte) { result += static_cast<char>(byte); };
    const auto put_rest = [&](int shift) { put(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        put_rest(0);
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put_rest(6);
        put_rest(0);
    } else {
        put(0xF0 | code >> 18);
        put_rest(12);
        put_rest(6);
        put_rest(0);
    }
}

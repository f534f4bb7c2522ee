#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "markup/Utf8.h"

/// The text of HTML without its tags and references, or a complaint where the tags do not nest.
inline std::string html_text(std::string_view html) {
    constexpr std::pair<std::string_view, char> references[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
    std::vector<std::string_view> open;
    std::string text;
    while (!html.empty()) {
        std::size_t size = 1;
        if (html.front() == '<') {
            size = html.find('>') + 1;
            const bool closes = html[1] == '/';
            std::string_view name = html.substr(closes ? 2 : 1);
            name = name.substr(0, name.find_first_of(" >"));
            if (!closes) {
                open.push_back(name);
            } else if (open.empty() || open.back() != name) {
                return "tags do not nest";
            } else {
                open.pop_back();
            }
        } else {
            char c = html.front();
            for (const auto& [reference, character] : references) {
                if (!html.starts_with(reference)) continue;
                c = character;
                size = reference.size();
            }
            if (html.starts_with("&#")) {
                c = static_cast<char>(std::stoi(std::string(html.substr(2))));
                size = html.find(';') + 1;
            }
            text += c;
        }
        html.remove_prefix(size);
    }
    return open.empty() ? text : "tags left open";
}

/// Whether the character may act where it is shown: a control character, or one that turns the
/// direction of writing.
inline bool acts(char32_t code) {
    constexpr std::pair<char32_t, char32_t> ranges[] = {{0, 0x1F},        {0x7F, 0x9F},
                                                        {0x61C, 0x61C},   {0x200E, 0x200F},
                                                        {0x202A, 0x202E}, {0x2066, 0x2069}};
    for (const auto& [first, last] : ranges) {
        if (code >= first && code <= last) return true;
    }
    return false;
}

/// Whether html5 has the text as it is: it has references to control characters of ASCII alone, and
/// none to NUL.
inline bool html5_keeps(std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        const bool referred = character.code > 0 && character.code < 0x80;
        if (!character.valid || (acts(character.code) && !referred)) return false;
        text.remove_prefix(character.size);
    }
    return true;
}

/// Text for a terminal without the sequences that select how it is drawn.
inline std::string terminal_text(std::string_view ansi) {
    std::string text;
    for (std::size_t i = 0; i < ansi.size(); ++i) {
        if (ansi[i] == '\x1b') {
            i = ansi.find('m', i);
        } else {
            text += ansi[i];
        }
    }
    return text;
}

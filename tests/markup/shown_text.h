#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

/// Whether html5 has the text as it is: NUL and the control characters that begin so have no
/// references.
inline bool html5_keeps(const std::string& text) {
    return text.find('\0') == std::string::npos && text.find('\xC2') == std::string::npos;
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

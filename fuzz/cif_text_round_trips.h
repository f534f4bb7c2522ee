#pragma once

#include <string>
#include <vector>

#include "finders/CifTextStyleFinder.h"
#include "finders/UnicodeTextStyleFinder.h"
#include "fuzz/shown_text.h"
#include "markup/CifTextRichTextGenerator.h"
#include "markup/DisplayedText.h"
#include "markup/UnicodeRichTextGenerator.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

template <class Generator>
std::string written_by(const TextItem& item) {
    Generator generator;
    return item.mark_up_text(generator);
}

/// What is shown, each byte with its styles.
inline std::string styled_text(const TextItem& item) {
    std::string styled;
    if (item.characters().empty()) return styled;
    for (const TextAtom& atom : item.atomize()) {
        if (atom.invisible()) continue;
        std::string style{static_cast<char>('0' + (atom.bold() ? 1 : 0) + (atom.italic() ? 2 : 0))};
        style += std::to_string(atom.valign());
        TextItem alone(make_handle<InputTextStyleFinder>(), atom.text());
        const unsigned int end = static_cast<unsigned int>(atom.text().size());
        if (atom.greek() != TextItem::no_symbol) alone.create_greek(0, end, atom.greek());
        if (!atom.replacement_txt().empty()) {
            alone.create_replacement_text(0, end, atom.replacement_txt());
        }
        const std::string shown = DisplayedText(alone).text();
        for (const char c : shown) styled.append(style).push_back(c);
    }
    return styled;
}

/// Whether the text is UTF-8 without anything that acts.
inline bool is_harmless_text(std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        if (!character.valid || acts(character.code)) return false;
        text.remove_prefix(character.size);
    }
    return true;
}

/// What of a text does not come back as it was, or nothing.
inline std::string complaint_of_cif_text(const std::string& text) {
    const TextItem read(make_handle<CifTextStyleFinder>(), text);
    const std::string codes = written_by<CifTextRichTextGenerator>(read);
    const auto finder = make_handle<CifTextStyleFinder>();
    const TextItem again(finder, codes);
    if (styled_text(again) != styled_text(read)) return "styles of codes: " + codes;
    if (!is_harmless_text(text)) return {};
    if (!finder->doubts().empty()) return "doubts about " + codes;

    const TextItem plain(make_handle<InputTextStyleFinder>(), text);
    const std::string plain_codes = written_by<CifTextRichTextGenerator>(plain);
    const TextItem plain_again(make_handle<CifTextStyleFinder>(), plain_codes);
    if (DisplayedText(plain_again).text() != text) return "plain text: " + plain_codes;

    const TextItem pasted(make_handle<UnicodeTextStyleFinder>(), text);
    const std::string unicode = written_by<UnicodeRichTextGenerator>(pasted);
    const TextItem pasted_again(make_handle<UnicodeTextStyleFinder>(), unicode);
    if (written_by<UnicodeRichTextGenerator>(pasted_again) != unicode) return "again: " + unicode;
    const std::string pasted_codes = written_by<CifTextRichTextGenerator>(pasted);
    const TextItem pasted_back(make_handle<CifTextStyleFinder>(), pasted_codes);
    if (unicode.find("\u0305") == std::string::npos &&
        written_by<UnicodeRichTextGenerator>(pasted_back) != unicode) {
        return "pasted: " + pasted_codes;
    }
    return {};
}

#pragma once

#include <string>

#include "entries/written_value.h"

/// The text with lines that end with "\n"; they end so, or with "\r\n" or "\r".
std::string with_line_feeds(const std::string& text);

/// Whether an editor writes a text: it must not, it may refuse, it must.
enum class Writable { no, perhaps, yes };

/// Whether a value of a CIF file can have a text, which the lines of text fields may hinder.
Writable writable(const std::string& text, bool is_version_2);

/// Calls `edit`; what is wrong where it refuses texts or does not. `is_done` tells whether it has.
template <class Edit>
std::string complaint_of_refusal(const Edit& edit, Writable all, bool& is_done) {
    is_done = false;
    try {
        edit();
        is_done = true;
        return all == Writable::no ? "what no CIF file can hold is not refused" : "";
    } catch (const UnwritableText& refusal) {
        return all == Writable::yes ? std::string("refused: ") + refusal.what() : "";
    }
}

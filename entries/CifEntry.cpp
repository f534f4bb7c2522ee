#include "entries/CifEntry.h"

#include <algorithm>

const EntryText* CifEntry::text(std::string_view label) const {
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [label](const EntryText& text) { return text.label == label; });
    return found == texts.end() ? nullptr : &*found;
}

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"
#include "text/TextItem.h"

/// What a reader of a page may copy of a field: its text in the mark-up of several targets. For one
/// thread at a time.
class CopiedForms {
public:
    CopiedForms();

    /// An object of JSON with the names of targets. Those that are left out have the text of
    /// "unicode"; "html5" and "unicode" what an element shows whose mark-up is `shown`, which is
    /// empty where none does. Empty where nothing is left.
    std::string of(const TextItem& item, std::string_view shown) const;

private:
    std::vector<std::pair<std::string_view, THandle<RichTextGenerator>>> generators_;
};

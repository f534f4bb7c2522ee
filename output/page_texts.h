#pragma once

#include <string_view>

/// A style or a script that stands in pages, and by what hash a page allows it.
struct PageText {
    std::string_view text;
    std::string_view hash;  ///< As policies of pages have it: "sha256-...".
};

extern const PageText page_style;
extern const PageText entries_script;
extern const PageText comparison_script;

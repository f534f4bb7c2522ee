#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

/// nlohmann's JSON with escapes, which stand only in strings, for what would act where it is shown
/// and for what would end a script of a page that embeds it; what is not UTF-8 is replaced. In
/// lines with indents, or in one without blanks.
std::string harmless_json(const nlohmann::ordered_json& json, bool in_lines = true);

/// Appends JSON with these escapes.
void append_harmless(std::string& result, std::string_view json);

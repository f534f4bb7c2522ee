#pragma once

#include <span>
#include <string_view>

/// The tags that files are known to have, in lower case with "_" for ".", in the order of their
/// bytes.
std::span<const std::string_view> known_tags();
bool is_known_tag(std::string_view tag);

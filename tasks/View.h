#pragma once

#include <span>
#include <string>
#include <vector>

#include "fields/LMRFieldNames.h"

/// One list of the catalogue's fields, as programs offer it to their users.
struct View {
    const char* name;
    const char* help;
    void (*list)(std::vector<LMRFieldNames::TextID>& out);
};

std::span<const View> views();

/// The fields with these labels, of which there is a comma between any two; labels with commas in
/// them are known. Throws UnknownField.
std::vector<LMRFieldNames::TextID> fields_named(const std::string& labels);
/// The field with that label; throws UnknownField.
LMRFieldNames::TextID field_named(const std::string& label);

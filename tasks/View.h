#pragma once

#include <span>
#include <string>
#include <vector>

#include "tasks/Field.h"

/// One list of the catalogue's fields, as programs offer it to their users.
struct View {
    const char* name;
    const char* help;
    std::span<const LMRFieldNames::TextID> (*list)() noexcept;

    /// The fields of the list, and those beyond the catalogue behind them.
    std::vector<Field> fields() const;
};

std::span<const View> views();

/// The fields with these labels, of which there is a comma between any two, and blanks as you like;
/// labels with commas in them are known, and case does not count. Throws UnknownField for the first
/// that is no label, with it alone.
std::vector<Field> fields_named(const std::string& labels);
/// The field with that label, whose case does not count; throws UnknownField.
const Field& field_named(const std::string& label);

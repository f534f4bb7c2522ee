#pragma once

#include <span>
#include <string_view>

/// Where readers of a page look for a field, and what it is called there.
struct ReaderField {
    enum class Place { head, cell, chemistry, crystal, experiment, refinement, remarks, records };

    const char* label;  ///< Of the field.
    Place place;
    const char* shown;  ///< The label without a unit.
    const char* unit;   ///< Of a text that is a number and nothing else; empty where it has none.
};

/// All fields in the order in which they are read, place by place.
std::span<const ReaderField> reader_fields();

/// The title of a place that is a card.
const char* title_of(ReaderField::Place place);

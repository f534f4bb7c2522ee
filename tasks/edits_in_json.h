#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tasks/Field.h"

/// What fields of an entry shall say.
struct EntryEdit {
    struct FieldText {
        const Field* field;
        std::string text;  ///< In the field's own form, or with the codes of CIF text.
    };

    std::string file, block;
    std::vector<FieldText> fields;
};

/// A text is not JSON, or not of entries; what() says why and where, in one line.
class EditsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What entries shall say as JSON tells what they do: an array of objects with "file", "block" and
/// "fields", of which each has "label" and "text", null: nothing. What else stands there does not
/// count. Throws EditsError, and UnknownField for a label.
std::vector<EntryEdit> edits_in_json(std::string_view json);

/// A text as JSON holds it: bytes that are not UTF-8 become replacement characters.
std::string as_in_json(const std::string& text);

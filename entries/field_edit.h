#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "entries/CifEdits.h"
#include "entries/EntryReader.h"

/// A field cannot be made to say what it should; what() says why, as a clause: "is computed from
/// the cell", "expected a number, not 'x'".
class FieldRefused : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// How the text of a field is written in its items.
enum class FieldWriting {
    text,     ///< With the codes of CIF text; any kind of styled text can be converted to it.
    own,      ///< In the field's own form: numbers with labels, names of people, a reference.
    derived,  ///< Not at all: it is computed from others.
};
FieldWriting field_writing(std::string_view label);

/// Makes a field of entry `index` say `text`, which is in the codes of CIF text or in the field's
/// own form, as show tells it; empty: nothing, "?" in the file. Only items whose part of the text
/// is another are changed; what is missing is added. Lists are changed row by row; authors may
/// also stand between semicolons, as files write them: "Smith, John B.; Jones, A.". Throws
/// FieldRefused and UnwritableText, and `edits` is then as it was; where memory ends, some of its
/// changes may be done, and `edits` is no longer of use. Returns the block of what it changes where
/// entries have that in common, else nothing.
std::optional<std::size_t> edit_field(const EntryReader& entries, std::size_t index,
                                      std::string_view label, const std::string& text,
                                      CifEdits& edits);

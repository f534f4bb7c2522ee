#pragma once

/// Parameters of the host's string functions.
class StringFunctionParameters {
public:
    /// What split() does with the empty pieces between two separators and at either end.
    enum BlankFieldControl { keep_blank_fields = 0, drop_blank_fields = 1 };
};

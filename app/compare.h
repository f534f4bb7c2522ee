#pragma once

#include <string>
#include <vector>

#include "app/SearchKind.h"
#include "fields/LMRFieldNames.h"
#include "markup/RichTextTarget.h"

struct CompareOptions {
    const RichTextTarget* to = nullptr;  // html5 writes a page with two columns
    std::vector<LMRFieldNames::TextID> fields;
    SearchSettings settings;
    std::string left, right;  // CIF files
};

struct CompareOutcome {
    bool same;
    bool good;  // nothing was reported
};

/// Compares the entries of two CIF files in turn, field by field, each as suits the field, and
/// writes both sides with what they have in common highlighted. Two fields are the same when their
/// texts are equal or the field's search says so both ways. Throws std::system_error when the
/// output cannot be written.
CompareOutcome compare(const CompareOptions& options);

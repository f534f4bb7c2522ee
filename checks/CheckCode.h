#pragma once

#include <span>
#include <string>
#include <string_view>

#include "entries/Problem.h"

/// One fault that checking finds.
struct CheckCode {
    const char* code;  ///< What it is called for good: "pages-reversed".
    Problem::Level level;
    const char* summary;  ///< One line, without a full stop: "the last page is before the first".
    const char*
        explanation;        ///< Sentences: what is compared, with what limits, and why it matters.
    const char* example;    ///< A CIF file that raises it, or the items of a block of one.
    const char* near_miss;  ///< Likewise one much like it that does not.
};

/// All of them, by subject.
std::span<const CheckCode> check_codes();
/// Null where there is none.
const CheckCode* check_code(std::string_view code);
/// An example or a near miss as a whole file.
std::string file_of_example(const char* example);

/// Codes that belong together.
struct CheckSubject {
    const char* name;  ///< "Symmetry".
    std::span<const CheckCode> (*codes)();
};
std::span<const CheckSubject> check_subjects();

// Those of each subject.

std::span<const CheckCode> file_codes();
/// Of values that reading asks for.
std::span<const CheckCode> reading_codes();
std::span<const CheckCode> text_codes();
std::span<const CheckCode> publication_codes();
std::span<const CheckCode> formula_codes();
std::span<const CheckCode> atom_codes();
std::span<const CheckCode> cell_codes();
std::span<const CheckCode> symmetry_codes();
std::span<const CheckCode> measurement_codes();

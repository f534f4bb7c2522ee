#include "comparison/ComparisonKind.h"

#include "comparison/compare_numbers.h"
#include "comparison/compare_plain_texts.h"
#include "comparison/compare_space_groups.h"

std::span<const ComparisonKind> comparison_kinds() {
    using Reason = Finding::Reason;
    static const ComparisonKind rows[] = {
        {"exact", "identifiers and codes: all counts", {}, compare_plain_texts},
        {"text", "names and free texts",
         reasons_of(Reason::first_letter_case, Reason::dash, Reason::apostrophe, Reason::blank,
                    Reason::greek, Reason::coding),
         compare_plain_texts},
        {"numbers", "numbers, paired by their labels", reasons_of(Reason::number_within_limit),
         compare_numbers},
        {"formula", "formulae, element by element", reasons_of(Reason::element_order),
         compare_plain_texts},
        {"authors", "lists of people", reasons_of(Reason::author_form), compare_plain_texts},
        {"reference", "journal, volume, year and pages", reasons_of(Reason::journal_form),
         compare_plain_texts},
        {"space-group", "space groups", {}, compare_space_groups},
    };
    return rows;
}

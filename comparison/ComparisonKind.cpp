#include "comparison/ComparisonKind.h"

#include "comparison/compare_authors.h"
#include "comparison/compare_formulae.h"
#include "comparison/compare_numbers.h"
#include "comparison/compare_plain_texts.h"
#include "comparison/compare_references.h"
#include "comparison/compare_space_groups.h"

std::span<const ComparisonKind> comparison_kinds() {
    using Reason = Finding::Reason;
    static const ComparisonKind rows[] = {
        {"exact", "identifiers and codes: all counts", {}, compare_plain_texts},
        {"text", "names and free texts",
         reasons_of(Reason::first_letter_case, Reason::dash, Reason::apostrophe, Reason::blank,
                    Reason::greek, Reason::coding),
         compare_plain_texts},
        {"numbers", "numbers, paired by their labels",
         reasons_of(Reason::number_within_limit, Reason::dash, Reason::blank, Reason::coding),
         compare_numbers},
        {"counts", "exact numbers, paired by their labels",
         reasons_of(Reason::number_within_limit, Reason::dash, Reason::blank, Reason::coding),
         compare_counts},
        {"formula", "formulae, element by element",
         reasons_of(Reason::element_order, Reason::blank, Reason::coding), compare_formulae},
        {"authors", "lists of people",
         reasons_of(Reason::author_form, Reason::letter_case, Reason::first_letter_case,
                    Reason::accent, Reason::dash, Reason::apostrophe, Reason::blank,
                    Reason::coding),
         compare_authors},
        {"reference", "journal, volume, year and pages",
         reasons_of(Reason::journal_form, Reason::letter_case, Reason::first_letter_case,
                    Reason::accent, Reason::dash, Reason::apostrophe, Reason::blank,
                    Reason::coding),
         compare_references},
        {"space-group", "space groups", reasons_of(Reason::coding), compare_space_groups},
    };
    return rows;
}

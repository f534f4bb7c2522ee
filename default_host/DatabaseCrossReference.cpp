#include "host/DatabaseCrossReference.h"

#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

using Mapping = EnumTextMapping<DatabaseCrossReference::CrossReferenceType>;

constexpr Mapping::Initialiser type_rows[] = {
    {DatabaseCrossReference::same_structure, "Same structure"},
    {DatabaseCrossReference::related_structure, "Related structure"},
    {DatabaseCrossReference::superseded, "Superseded"},
};

const Mapping mapping(type_rows, std::size(type_rows));

}  // namespace

const Mapping& DatabaseCrossReference::cross_reference_type_text() { return mapping; }

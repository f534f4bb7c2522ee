#include "host/DepositionInfo.h"

#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

using Mapping = EnumTextMapping<DepositionInfo::DepositionType>;

constexpr Mapping::Initialiser type_rows[] = {
    {DepositionInfo::kovr, "KOVR"},
    {DepositionInfo::supplementary, "Supplementary"},
    {DepositionInfo::journal, "Journal"},
};

const Mapping mapping(type_rows, std::size(type_rows));

}  // namespace

const Mapping& DepositionInfo::deposition_type_text() { return mapping; }

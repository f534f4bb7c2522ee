#include "tasks/FieldTerm.h"

FieldTerm::FieldTerm(std::string written, std::vector<Field> own_fields, Find find,
                     MayBeOf may_be_of)
    : Term(std::move(written), std::move(own_fields)),
      find_(std::move(find)),
      may_be_of_(std::move(may_be_of)) {}

FieldTerm::~FieldTerm() = default;

bool FieldTerm::may_be_of(const CifEntry& entry) const { return !may_be_of_ || may_be_of_(entry); }

void FieldTerm::find(const SearchedText& text, std::vector<StringSlice>& ranges) const {
    find_(text, ranges);
}

#include "tasks/Term.h"

#include <algorithm>

Term::~Term() = default;

bool Term::may_stand_in(const Field& field) const {
    return own_fields_.empty() ||
           std::any_of(own_fields_.begin(), own_fields_.end(),
                       [&](const Field& own) { return own.label == field.label; });
}

bool Term::may_be_of(const CifEntry& /*entry*/) const { return true; }

bool Term::may_stand_on(const std::string& /*skeleton*/) const { return true; }

bool Term::may_stand_in(const CifEntry& /*entry*/, const Field& /*field*/) const { return true; }

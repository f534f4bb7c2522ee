#pragma once

#include <string>
#include <vector>

#include "tasks/EntryFinder.h"

/// The terms that a user wrote so. Throws BadTerm; notes what may be misspelt.
EntryFinder::Terms terms_of(const std::vector<std::string>& written, const TermSettings& settings);

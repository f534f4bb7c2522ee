#pragma once

#include <string>
#include <vector>

#include "tasks/EntryFields.h"

/// What was found as what: "'cisarova' is Císařová", or "'Liao'" where it is the same.
std::string reason_of(const FieldMatch& match);
/// That of the first few matches that differ in it, and how many others there are.
std::string reason_of(const std::vector<FieldMatch>& matches);

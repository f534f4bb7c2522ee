#pragma once

#include <string>

#include "cli/InputFile.h"
#include "entries/CifDocument.h"

/// The bytes of a CIF file; of one that does not begin as such only the beginning. Throws
/// InputError.
std::string read_cif(InputFile& file);

/// Why a file that was read is none, in a sentence.
std::string not_cif(const std::string& path, const CifError& error);

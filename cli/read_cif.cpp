#include "cli/read_cif.h"

#include "entries/CifBeginning.h"

namespace {

constexpr std::size_t most_unpacked = 1 << 30;  // bytes, for they are held at once

}  // namespace

std::string read_cif(InputFile& file) {
    std::string bytes;
    CifBeginning beginning;
    while (beginning.may_be_cif(bytes) && file.read(bytes)) {
        if (file.is_packed() && bytes.size() > most_unpacked) {
            throw InputError(file.name() + ": unpacks to more than 1 GB");
        }
    }
    return bytes;
}

std::string not_cif(const std::string& path, const CifError& error) {
    return path + ":" + std::to_string(error.line()) + ": not a CIF file: " + error.what();
}

#include "cli/EntryFile.h"

#include <new>

#include "entries/CifBeginning.h"

namespace {

constexpr std::size_t most_unpacked = 1 << 30;  // bytes, for they are held at once

std::string read_cif(const std::string& path) {
    InputFile file(path);
    std::string bytes;
    CifBeginning beginning;
    while (beginning.may_be_cif(bytes) && file.read(bytes)) {
        if (file.is_packed() && bytes.size() > most_unpacked) {
            throw InputError(file.name() + ": unpacks to more than 1 GB");
        }
    }
    return bytes;
}

}  // namespace

EntryFile::EntryFile(const std::string& path) : path_(path) {
    try {
        bytes_ = read_cif(path);
        reader_.emplace(bytes_);
    } catch (const InputError& error) {
        refuse(error.what());
    } catch (const CifError& error) {
        refuse(path + ":" + std::to_string(error.line()) + ": not a CIF file: " + error.what());
    } catch (const std::bad_alloc&) {
        refuse(path + ": out of memory");
    }
}

bool EntryFile::next(std::optional<CifEntry>& entry) {
    if (!reader_ || next_ == reader_->size()) return false;
    try {
        entry.emplace((*reader_)[next_++]);
    } catch (const std::bad_alloc&) {
        refuse(path_ + ": out of memory");
        return false;
    }
    for (Problem& problem : entry->problems) problem.file = path_;
    return true;
}

double EntryFile::part_read() const {
    const std::size_t size = reader_ ? reader_->size() : 0;
    return size == 0 ? 1 : static_cast<double>(next_) / static_cast<double>(size);
}

void EntryFile::refuse(const std::string& message) { problem_.emplace().what = message; }

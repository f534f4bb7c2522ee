#include "cli/EntryFile.h"

#include <new>

#include "cli/read_cif.h"

EntryFile::EntryFile(const std::string& path) : path_(path) {
    try {
        InputFile file(path);
        bytes_ = read_cif(file);
        is_packed_ = file.is_packed();
        reader_.emplace(bytes_);
    } catch (const InputError& error) {
        refuse(error.what());
    } catch (const CifError& error) {
        cif_error_ = error;
        refuse(not_cif(path, error));
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

#include "cli/EntryFile.h"

#include <new>

#include "cli/report.h"
#include "entries/CifBeginning.h"

namespace {

std::string read_cif(const std::string& path) {
    InputFile file(path);
    std::string bytes;
    CifBeginning beginning;
    while (beginning.may_be_cif(bytes) && file.read(bytes)) {
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
    for (Problem& problem : entry->problems) {
        problem.file = path_;
        report(problem);
        good_ = good_ && problem.level != Problem::Level::error;
    }
    return true;
}

void EntryFile::refuse(const std::string& message) {
    report(message);
    good_ = false;
}

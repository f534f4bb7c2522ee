#include "cli/EditWriter.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

#include "cli/InputFile.h"
#include "cli/TextOutput.h"
#include "cli/report.h"

namespace {

constexpr std::size_t most_under_way = 16;  // disks do not gain much beyond

/// Why the file could not be put in its place; empty where it was.
std::string put_in_place(const EditBatch::Edited& edited, bool keeps_backup) {
    try {
        edited.file->replace(edited.bytes, keeps_backup);
        return "";
    } catch (const InputError& error) {
        return error.what();
    } catch (const std::system_error& error) {
        return error.what();
    }
}

}  // namespace

EditWriter::~EditWriter() = default;

void EditWriter::add(EditBatch::Edited edited) {
    const bool changes = !edited.splices.empty();
    while (under_way_.size() >= most_under_way ||
           (changes && !under_way_.empty() && is_under_way(*edited.file))) {
        finish_first();
    }
    auto writing = std::make_unique<Writing>(Writing{std::move(edited)});
    if (changes) {
        writing->failure = std::async(std::launch::async | std::launch::deferred, put_in_place,
                                      std::cref(writing->edited), keeps_backups_);
    }
    under_way_.push_back(std::move(writing));
}

void EditWriter::finish() {
    while (!under_way_.empty()) finish_first();
    for (const std::string& folder : folders_) sync_folder(folder);
}

/// Whether a file is being written that is the same by another name.
bool EditWriter::is_under_way(const EditedFile& file) const {
    return std::any_of(under_way_.begin(), under_way_.end(), [&](const auto& writing) {
        return writing->failure.valid() && writing->edited.file->is_same_as(file);
    });
}

void EditWriter::finish_first() {
    const std::unique_ptr<Writing> first = std::move(under_way_.front());
    under_way_.pop_front();
    good_ = report(first->edited.problems) && good_;
    if (!first->failure.valid()) return;
    const std::string failure = first->failure.get();
    if (failure.empty()) {
        folders_.insert(std::filesystem::path(first->edited.file->place()).parent_path());
        any_written_ = true;
    } else {
        report(failure);
        good_ = false;
    }
}

#pragma once

#include <deque>
#include <future>
#include <memory>
#include <set>
#include <string>

#include "cli/EditBatch.h"

/// Puts edited files in their places, several at the same time, for what takes long is to wait for
/// the disk. What is wrong is reported in the order of the files.
class EditWriter {
public:
    /// Whether each file as it was is kept beside it.
    explicit EditWriter(bool keeps_backups) : keeps_backups_(keeps_backups) {}
    EditWriter(const EditWriter&) = delete;
    EditWriter& operator=(const EditWriter&) = delete;
    ~EditWriter();

    /// Begins to write a file that has changed; may wait for those before it.
    void add(EditBatch::Edited edited);
    /// Waits for all files. Throws what only memory is missing for, as does add().
    void finish();

    /// Whether no error has been reported so far, and whether some file was written.
    /// @{
    bool good() const { return good_; }
    bool any_written() const { return any_written_; }
    /// @}

private:
    struct Writing {
        EditBatch::Edited edited;
        std::future<std::string> failure{};  // a sentence, empty where there is none; or no writing
    };

    bool is_under_way(const EditedFile& file) const;
    void finish_first();

    bool keeps_backups_;
    std::deque<std::unique_ptr<Writing>> under_way_;  // which threads refer to
    std::set<std::string> folders_;                   // of files that were written
    bool good_ = true, any_written_ = false;
};

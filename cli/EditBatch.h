#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/EditedFile.h"
#include "cli/PlaceGroups.h"
#include "cli/WorkQueue.h"
#include "entries/EditSession.h"
#include "entries/Problem.h"

/// What shall become of a file, and what there is to say about it.
struct FileChange {
    Splices splices;
    std::vector<Problem> problems;
    /// Whether the same edits change nothing more where they have been made, unless one undoes what
    /// another did.
    bool is_lasting = false;
    std::optional<Problem> first{};  ///< The first field that changes, without what is wrong.
};

/// Changes the entries of place number `place`, several of different places at the same time.
using EditEntries = std::function<FileChange(std::size_t place, const EntryReader& entries)>;

/// Has several CIF files edited in memory, in threads, and gives them in their order. Holds a few
/// files for each job.
class EditBatch {
public:
    /// A file, and the bytes that it shall have.
    struct Edited {
        std::optional<EditedFile> file{};  // none: could not be read
        std::string bytes{};
        Splices splices{};  // none: nothing changes, or something is wrong
        std::vector<Problem> problems{};
    };

    /// `jobs` is 1 or more; with 1 each file is edited when it is asked for.
    EditBatch(std::vector<Place> places, unsigned int jobs, EditEntries edit);
    EditBatch(const EditBatch&) = delete;
    EditBatch& operator=(const EditBatch&) = delete;
    ~EditBatch();

    /// Waits for the next file; none at the end. A file with an error among its problems is not to
    /// be changed. Throws what editing throws, but std::bad_alloc.
    std::optional<Edited> next();

    std::size_t places() const { return groups_.size(); }

private:
    Edited edited(const Place& place, std::size_t number) const;
    void edit(const Place& place, std::size_t number, Edited& done) const;
    void begin_to_edit();

    PlaceGroups groups_;
    EditEntries edit_;
    std::deque<Edited> done_;  // those that stand before the ones in work
    WorkQueue<std::vector<Edited>> in_work_;
};

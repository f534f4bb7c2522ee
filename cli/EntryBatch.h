#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "cli/EntryFile.h"
#include "cli/PlaceGroups.h"
#include "cli/WorkQueue.h"
#include "output/LaidOutPart.h"

/// What became of some entries of a file.
struct ProcessedEntries {
    std::vector<LaidOutPart> parts;  ///< Of the document that is written.
    std::vector<Problem> problems;   ///< With the name of the file.
    unsigned long count = 0;         ///< Of entries.
    unsigned long matched = 0;       ///< Of these, where something is looked for.
};

/// Makes something of entries of a file, several of one or of several at the same time.
using ProcessEntries =
    std::function<ProcessedEntries(const std::string& file, std::span<const CifEntry> entries)>;

/// Has the entries of several CIF files processed in threads, a few at a time, and gives the
/// results in the order of the entries. What is wrong is reported in that order too. Where threads
/// are refused, fewer work. Holds a file and a few entries for each job.
class EntryBatch {
public:
    /// `jobs` is 1 or more; with 1 each entry is processed when its result is asked for.
    EntryBatch(std::vector<Place> places, unsigned int jobs, ProcessEntries process);
    EntryBatch(const EntryBatch&) = delete;
    EntryBatch& operator=(const EntryBatch&) = delete;
    ~EntryBatch();

    /// Waits for the next result, of one entry or more; false at the end. Throws what processing
    /// throws, but a file for which there is no memory is reported, and the others go on.
    bool next(ProcessedEntries& done);

    /// Whether no error has been reported so far.
    bool good() const { return good_; }

    /// How many places there are, and how many have been read, the last perhaps in part.
    /// @{
    std::size_t places() const { return places_.size(); }
    double places_read() const;
    /// @}

private:
    /// A file that has been opened, and what became of its first entries.
    struct Opened {
        std::string problem;  // empty: there is a file
        std::unique_ptr<EntryFile> file{};
        ProcessedEntries first{};
    };

    std::vector<CifEntry> read_entries(EntryFile& file) const;
    Opened open(Place place) const;
    bool open_next(ProcessedEntries& done);
    bool next_of_file(ProcessedEntries& done);
    void begin_to_open();
    void begin_to_process();
    void refuse(const std::string& message);

    PlaceGroups places_;
    unsigned int jobs_;
    ProcessEntries process_;
    std::size_t being_opened_ = 0;     // the places of openings_
    std::deque<Opened> opened_;        // those that stand before them
    std::unique_ptr<EntryFile> file_;  // of which entries are left; null: none
    bool good_ = true;
    WorkQueue<std::vector<Opened>> openings_;
    WorkQueue<ProcessedEntries> in_work_;  // entries of the file
};

#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "checks/check_entries.h"
#include "cli/EditedFile.h"
#include "cli/PlaceGroups.h"
#include "cli/WorkQueue.h"

/// What became of a file that was checked.
struct CheckedFile {
    std::string path;
    std::string trouble;  ///< Why it could not be checked, or not be repaired: a sentence or empty.
    bool is_cif = true;   ///< Otherwise the one finding says why not.
    CheckFindings findings{};          ///< What is left, if it was repaired.
    std::size_t repairs = 0;           ///< How many were done.
    std::optional<EditedFile> file{};  ///< That is to hold `bytes`.
    std::string bytes{};
};

/// Has CIF files checked in threads and gives the results in the order of the files. Where threads
/// are refused, fewer work.
class CheckBatch {
public:
    /// What is to be looked for, and done.
    struct Wanted {
        WantedChecks checks{};
        bool repair = false;
        bool keeps_backups = false;
    };

    /// `jobs` is 1 or more.
    CheckBatch(std::vector<Place> places, unsigned int jobs, Wanted wanted)
        : places_(std::move(places), jobs), wanted_(std::move(wanted)), in_work_(jobs) {}
    CheckBatch(const CheckBatch&) = delete;
    CheckBatch& operator=(const CheckBatch&) = delete;
    ~CheckBatch();

    /// Waits for the next file; none at the end.
    std::optional<CheckedFile> next();

    /// How many files there are, and how many have been given.
    /// @{
    std::size_t size() const { return places_.size(); }
    std::size_t given() const { return given_; }
    /// @}

private:
    using Files = std::vector<CheckedFile>;

    void write(CheckedFile& checked);

    PlaceGroups places_;
    Wanted wanted_;
    std::size_t given_ = 0;
    std::deque<CheckedFile> done_;
    std::set<std::string> changed_folders_;
    WorkQueue<Files> in_work_;
};

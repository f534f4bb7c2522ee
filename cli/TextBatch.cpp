#include "cli/TextBatch.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <thread>
#include <utility>

#include "cli/Progress.h"
#include "cli/TextBlocks.h"
#include "cli/TextOutput.h"
#include "cli/WorkQueue.h"
#include "cli/report.h"

namespace {

/// As many of the jobs as there are processors for: more would only take the memory of their
/// blocks out of each other's caches. Nothing of a text is waited for, as files are.
unsigned int useful_threads(unsigned int jobs) {
    const unsigned int processors = std::thread::hardware_concurrency();
    return processors == 0 ? jobs : std::min(jobs, processors);
}

/// Takes the files in turn and keeps as many blocks in work as there are jobs.
class Batch {
public:
    Batch(const TextBatch& batch, const MakeTextProcess& make_process)
        : batch_(batch), make_process_(make_process), places_(batch.places.files()) {
        if (!batch.places.are_named()) places_.push_back({"-", ""});
    }

    BatchOutcome run() {
        for (const Place& place : places_) {
            if (place.problem.empty()) {
                add_file(place.path);
            } else {
                refuse(place.problem);
            }
        }
        while (!in_work_.empty()) finish_first();
        output_.close();
        return outcome_;
    }

private:
    /// What became of a block.
    struct Done {
        std::string file;
        unsigned int file_number;
        unsigned long texts;
        std::optional<ProcessedTexts> processed{};  // none: out of memory
    };

    void add_file(const std::string& path) {
        ++file_number_;
        try {
            if (output_.is_at(path)) throw InputError(path + ": input file is output file");
            TextBlocks blocks(path, batch_.separator);
            for (TextBlock block; file_number_ != given_up_ && blocks.next(block);) {
                add(std::move(block));
            }
        } catch (const InputError& error) {
            refuse(error.what());
        } catch (const std::bad_alloc&) {
            refuse(path + ": out of memory");
        }
    }

    void refuse(const std::string& message) {
        while (!in_work_.empty()) finish_first();
        report(message);
        outcome_.good = false;
    }

    void add(TextBlock block) {
        in_work_.begin(
            [this, number = file_number_, block = std::make_shared<TextBlock>(std::move(block))] {
                Done done{std::move(block->file), number, block->count};
                try {
                    done.processed = process_texts(std::move(block->bytes), batch_.separator,
                                                   block->first, make_process_);
                } catch (const std::bad_alloc&) {
                    done.processed.reset();
                }
                return done;
            });
        if (in_work_.is_full()) finish_first();
    }

    void finish_first() {
        Done done = in_work_.take_first();
        if (done.file_number == given_up_) return;
        if (done.processed) {
            write(done.file, *done.processed);
            texts_ += done.texts;
            progress_.update(texts_, done.file_number - 1);
        } else {
            // Without this block the texts behind it would be taken for others.
            given_up_ = done.file_number;
            report(done.file + ": out of memory");
            outcome_.good = false;
        }
    }

    void write(const std::string& file, ProcessedTexts& done) {
        for (Problem& problem : done.problems) {
            problem.file = file;
            report(problem);
        }
        outcome_.good = outcome_.good && done.good;
        outcome_.matched = outcome_.matched || done.matched;
        output_.write(done.output);
        output_.flush();
    }

    const TextBatch& batch_;
    const MakeTextProcess& make_process_;
    std::vector<Place> places_;
    TextOutput output_;
    Progress progress_{batch_.shows_progress && !output_.is_terminal(), "texts", places_.size()};
    unsigned long texts_ = 0;  // that have been written
    BatchOutcome outcome_;
    unsigned int file_number_ = 0;  // of the file that is read, from 1
    unsigned int given_up_ = 0;     // the number of the file of which no more is written
    WorkQueue<Done> in_work_{useful_threads(batch_.jobs)};
};

}  // namespace

BatchOutcome TextBatch::process(const MakeTextProcess& make_process) const {
    return Batch(*this, make_process).run();
}

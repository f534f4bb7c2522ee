#include "cli/TextBatch.h"

#include <deque>
#include <future>
#include <memory>
#include <new>
#include <utility>

#include "cli/Progress.h"
#include "cli/TextBlocks.h"
#include "cli/TextOutput.h"
#include "cli/launch_policy.h"
#include "cli/report.h"

namespace {

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
    struct Work {
        std::string file;
        unsigned int file_number;
        unsigned long texts;
        std::future<ProcessedTexts> processed;
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
        const std::string file = block.file;
        const unsigned long texts = block.count;
        const auto process = [this, block = std::make_shared<TextBlock>(std::move(block))] {
            return process_texts(std::move(block->bytes), batch_.separator, block->first,
                                 make_process_);
        };
        in_work_.push_back(
            {file, file_number_, texts, std::async(launch_policy(batch_.jobs), process)});
        if (in_work_.size() >= batch_.jobs) finish_first();
    }

    void finish_first() {
        Work work = std::move(in_work_.front());
        in_work_.pop_front();
        if (work.file_number == given_up_) return;
        try {
            write(work.file, work.processed.get());
            texts_ += work.texts;
            progress_.update(texts_, work.file_number - 1);
        } catch (const std::bad_alloc&) {
            // Without this block the texts behind it would be taken for others.
            given_up_ = work.file_number;
            report(work.file + ": out of memory");
            outcome_.good = false;
        }
    }

    void write(const std::string& file, ProcessedTexts done) {
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
    std::deque<Work> in_work_;      // in the order of the texts
};

}  // namespace

BatchOutcome TextBatch::process(const MakeTextProcess& make_process) const {
    return Batch(*this, make_process).run();
}

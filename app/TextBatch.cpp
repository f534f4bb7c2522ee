#include "app/TextBatch.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <future>
#include <new>
#include <string_view>
#include <utility>

#include "app/Diagnostics.h"
#include "app/TextBlocks.h"
#include "app/TextOutput.h"

namespace {

/// What became of a block of texts.
struct Processed {
    struct Report {
        unsigned long number;  // of the text
        std::string message;
    };

    std::string file;
    std::string output;
    std::vector<Report> reports;
    bool good = true;
};

Processed process_block(const TextBatch& batch, const std::optional<std::string>& failed,
                        const MakeTextProcess& make_process, const TextBlock& block) {
    Processed done;
    done.file = block.file;
    done.output.reserve(2 * block.bytes.size());
    const std::unique_ptr<TextProcess> process = make_process();
    std::vector<std::string> warnings;
    std::string text;
    unsigned long number = block.first;
    std::string_view rest = block.bytes;
    for (; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find(batch.separator), rest.size());
        text = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        const std::size_t written = done.output.size();
        warnings.clear();
        try {
            if (process->process(text, done.output, warnings)) {
                done.output += batch.separator;
            } else {
                done.output.resize(written);
            }
        } catch (const std::exception& error) {
            done.output.resize(written);
            if (failed) done.output += *failed + batch.separator;
            done.reports.push_back({number, error.what()});
            done.good = false;
        }
        for (std::string& warning : warnings) done.reports.push_back({number, std::move(warning)});
    }
    return done;
}

/// Takes the files in turn and keeps as many blocks in work as there are jobs.
class Batch {
public:
    Batch(const TextBatch& batch, const std::optional<std::string>& failed,
          const MakeTextProcess& make_process)
        : batch_(batch), failed_(failed), make_process_(make_process) {}

    bool run() {
        if (batch_.files.empty()) add_file("-");
        for (const std::string& file : batch_.files) add_file(file);
        while (!in_work_.empty()) finish_first();
        output_.close();
        return good_;
    }

private:
    void add_file(const std::string& path) {
        try {
            if (output_.is_at(path)) throw InputError(path + ": input file is output file");
            TextBlocks blocks(path, batch_.separator);
            for (TextBlock block; blocks.next(block);) add(std::move(block));
        } catch (const InputError& error) {
            refuse(error.what());
        } catch (const std::bad_alloc&) {
            refuse(path + ": out of memory");
        }
    }

    void refuse(const std::string& message) {
        while (!in_work_.empty()) finish_first();
        report(message);
        good_ = false;
    }

    void add(TextBlock block) {
        const auto policy = batch_.jobs > 1 ? std::launch::async : std::launch::deferred;
        in_work_.push_back(std::async(policy, [this, block = std::move(block)] {
            return process_block(batch_, failed_, make_process_, block);
        }));
        if (in_work_.size() >= batch_.jobs) finish_first();
    }

    void finish_first() {
        const Processed done = in_work_.front().get();
        in_work_.pop_front();
        for (const Processed::Report& said : done.reports) {
            report(done.file, said.number, said.message);
        }
        good_ = good_ && done.good;
        output_.write(done.output);
        output_.flush();
    }

    const TextBatch& batch_;
    const std::optional<std::string>& failed_;
    const MakeTextProcess& make_process_;
    TextOutput output_;
    bool good_ = true;
    std::deque<std::future<Processed>> in_work_;  // in the order of the texts
};

}  // namespace

bool process_texts(const TextBatch& batch, const std::optional<std::string>& failed,
                   const MakeTextProcess& make_process) {
    return Batch(batch, failed, make_process).run();
}

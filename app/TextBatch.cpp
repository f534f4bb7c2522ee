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

constexpr std::size_t long_block = 4 << 20;  // one text, for whose output no place is kept

/// What became of a block of texts.
struct Processed {
    struct Report {
        unsigned long number;  // of the text
        std::string message;
    };

    std::string output;
    std::vector<Report> reports;
    bool good = true;

    /// A long text, the first of its block, is not copied.
    void add(std::string&& text, char separator) {
        if (output.empty() && text.size() > output.capacity()) {
            output = std::move(text);
        } else {
            output += text;
        }
        output += separator;
    }
};

/// Takes the texts of a block one after the other.
class Texts {
public:
    Texts(std::string bytes, char separator) : bytes_(std::move(bytes)), separator_(separator) {}

    bool next(std::string& text) {
        if (next_ >= bytes_.size()) return false;
        const std::size_t end = std::min(bytes_.find(separator_, next_), bytes_.size());
        if (next_ == 0 && end + 1 >= bytes_.size()) {  // the only one, perhaps long: not copied
            bytes_.resize(end);
            text = std::exchange(bytes_, {});
            return true;
        }
        text.assign(bytes_, next_, end - next_);
        next_ = end + 1;
        return true;
    }

private:
    std::string bytes_;
    char separator_;
    std::size_t next_ = 0;
};

std::string reason(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) ? "out of memory" : error.what();
}

Processed process_block(const TextBatch& batch, const std::optional<std::string>& failed,
                        const MakeTextProcess& make_process, TextBlock& block) {
    Processed done;
    if (block.bytes.size() < long_block) done.output.reserve(2 * block.bytes.size());
    const std::unique_ptr<TextProcess> process = make_process();
    std::vector<std::string> warnings;
    std::string text;
    unsigned long number = block.first;
    for (Texts texts(std::move(block.bytes), batch.separator); texts.next(text); ++number) {
        const std::size_t written = done.output.size();
        warnings.clear();
        try {
            std::optional<std::string> result = process->process(text, warnings);
            if (result) done.add(std::move(*result), batch.separator);
        } catch (const std::exception& error) {
            done.output.resize(written);
            if (failed) done.output += *failed + batch.separator;
            done.reports.push_back({number, reason(error)});
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
    struct Work {
        std::string file;
        unsigned int file_number;
        std::future<Processed> processed;
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
        good_ = false;
    }

    void add(TextBlock block) {
        // A block for which there is no thread is processed by the one who asks for it.
        const auto policy =
            batch_.jobs > 1 ? std::launch::async | std::launch::deferred : std::launch::deferred;
        const std::string file = block.file;
        const auto process = [this, block = std::make_shared<TextBlock>(std::move(block))] {
            return process_block(batch_, failed_, make_process_, *block);
        };
        in_work_.push_back({file, file_number_, std::async(policy, process)});
        if (in_work_.size() >= batch_.jobs) finish_first();
    }

    void finish_first() {
        Work work = std::move(in_work_.front());
        in_work_.pop_front();
        if (work.file_number == given_up_) return;
        try {
            write(work.file, work.processed.get());
        } catch (const std::bad_alloc&) {
            // Without this block the texts behind it would be taken for others.
            given_up_ = work.file_number;
            report(work.file + ": out of memory");
            good_ = false;
        }
    }

    void write(const std::string& file, const Processed& done) {
        for (const Processed::Report& said : done.reports) report(file, said.number, said.message);
        good_ = good_ && done.good;
        output_.write(done.output);
        output_.flush();
    }

    const TextBatch& batch_;
    const std::optional<std::string>& failed_;
    const MakeTextProcess& make_process_;
    TextOutput output_;
    bool good_ = true;
    unsigned int file_number_ = 0;  // of the file that is read, from 1
    unsigned int given_up_ = 0;     // the number of the file of which no more is written
    std::deque<Work> in_work_;      // in the order of the texts
};

}  // namespace

bool process_texts(const TextBatch& batch, const std::optional<std::string>& failed,
                   const MakeTextProcess& make_process) {
    return Batch(batch, failed, make_process).run();
}

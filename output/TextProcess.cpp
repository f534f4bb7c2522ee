#include "output/TextProcess.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

namespace {

constexpr std::size_t long_block = 4 << 20;  // one text, for whose output no place is kept

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

/// Appends a text; a long one, the first, is not copied.
void append(std::string& output, std::string&& text, char separator) {
    if (output.empty() && text.size() > output.capacity()) {
        output = std::move(text);
    } else {
        output += text;
    }
    output += separator;
}

const char* reason(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) ? "out of memory" : error.what();
}

}  // namespace

TextProcess::~TextProcess() = default;

ProcessedTexts process_texts(std::string bytes, char separator, unsigned long first,
                             const MakeTextProcess& make_process) {
    ProcessedTexts done;
    if (bytes.size() < long_block) done.output.reserve(2 * bytes.size());
    const std::unique_ptr<TextProcess> process = make_process();
    std::string text;
    unsigned long number = first;
    for (Texts texts(std::move(bytes), separator); texts.next(text); ++number) {
        const std::size_t written = done.output.size();
        const std::size_t noted = done.problems.size();
        std::optional<std::string> result;
        try {
            result = process->process(text, done.problems);
            if (result) append(done.output, std::move(*result), separator);
        } catch (const std::exception& error) {
            done.output.resize(written);
            done.good = false;
            Problem& problem = done.problems.emplace_back();
            problem.what = reason(error);
            if (process->failed()) done.output += *process->failed() + separator;
        }
        for (std::size_t i = noted; i < done.problems.size(); ++i) {
            if (!done.problems[i].is_of_run) done.problems[i].line = number;
        }
    }
    done.matched = process->matched();
    return done;
}

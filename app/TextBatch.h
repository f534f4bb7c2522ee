#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The texts that a command works on.
struct TextBatch {
    std::vector<std::string> files;  // none: standard input
    char separator = '\n';           // ends each text, read or written
    unsigned int jobs = 1;           // threads that work on them, 1 or more
};

/// What a command makes of texts, one after the other in one thread.
class TextProcess {
public:
    TextProcess() = default;
    TextProcess(const TextProcess&) = delete;
    TextProcess& operator=(const TextProcess&) = delete;
    virtual ~TextProcess() = default;

    /// What becomes of the text; none: nothing shall be written for it. Appends what there is to
    /// say about it to `warnings`. Throws what the text fails with.
    virtual std::optional<std::string> process(const std::string& text,
                                               std::vector<std::string>& warnings) = 0;
};

using MakeTextProcess = std::function<std::unique_ptr<TextProcess>()>;

/// Hands block after block of the texts to a process of its own and writes what they return to
/// standard output, in the order of the texts. A text for which a process throws is reported and
/// leaves what `failed` says in its place; a file that cannot be read or for which there is no
/// memory is reported too, and the others go on. Where threads are refused, fewer work. Returns
/// whether nothing failed. Throws std::system_error when the output cannot be written. Holds a few
/// blocks for each job.
bool process_texts(const TextBatch& batch, const std::optional<std::string>& failed,
                   const MakeTextProcess& make_process);

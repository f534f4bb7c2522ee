#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "entries/Problem.h"

/// What a command makes of texts, one after the other in one thread.
class TextProcess {
public:
    TextProcess() = default;
    TextProcess(const TextProcess&) = delete;
    TextProcess& operator=(const TextProcess&) = delete;
    virtual ~TextProcess();

    /// What becomes of the text; none: nothing shall be written for it. Appends what there is to
    /// say about it to `problems`. Throws what the text fails with.
    virtual std::optional<std::string> process(const std::string& text,
                                               std::vector<Problem>& problems) = 0;
    /// What is written for a text that fails.
    virtual std::optional<std::string> failed() const { return ""; }
    /// Whether some text so far was what was looked for.
    virtual bool matched() const { return false; }
};

using MakeTextProcess = std::function<std::unique_ptr<TextProcess>()>;

/// What became of texts.
struct ProcessedTexts {
    std::string output;
    std::vector<Problem> problems;  ///< Their lines are the numbers of the texts.
    bool good = true;               ///< None failed.
    bool matched = false;           ///< Some text was what was looked for.
};

/// Processes the texts in `bytes`, each with the separator behind it, which the last may lack; the
/// first has the number `first`. A text that fails is a problem, and the others go on. A single
/// text is not copied. Throws what `make_process` throws, and std::bad_alloc when there is no room
/// for what the texts that went well became.
ProcessedTexts process_texts(std::string bytes, char separator, unsigned long first,
                             const MakeTextProcess& make_process);

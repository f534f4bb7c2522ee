#pragma once

#include "cli/Places.h"
#include "output/TextProcess.h"

struct BatchOutcome {
    bool good = true;      // nothing failed
    bool matched = false;  // some text was what was looked for
};

/// The texts that a command works on.
struct TextBatch {
    Places places{};        // none: standard input
    char separator = '\n';  // ends each text, read or written
    unsigned int jobs = 1;  // threads, 1 or more, of which as many work as there are processors
    bool shows_progress = true;

    /// Hands block after block of the texts to a process of its own and writes what they return to
    /// standard output, in the order of the texts. A text that fails is reported; a file that
    /// cannot be read or for which there is no memory is reported too, and the others go on. Where
    /// threads are refused, fewer work. Throws std::system_error when the output cannot be written.
    /// Holds a few blocks for each job.
    BatchOutcome process(const MakeTextProcess& make_process) const;
};

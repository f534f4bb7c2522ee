#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/TextFile.h"
#include "app/TextOutput.h"

/// The texts that a command works on.
struct TextBatch {
    std::vector<std::string> files;  // none: standard input
    char separator = '\n';           // ends each text, read or written
};

/// What becomes of one text of a file; nothing is written for std::nullopt.
using TextProcess =
    std::function<std::optional<std::string>(const TextFile& file, std::string_view)>;

/// Hands text by text to `process` in constant memory and writes what it returns to standard
/// output. A text for which it throws is reported and leaves what `failed` says in its place; a
/// file that cannot be read is reported too, and the others go on. Returns whether nothing was.
/// Throws std::system_error when the output cannot be written.
bool process_texts(const TextBatch& batch, const std::optional<std::string>& failed,
                   const TextProcess& process);

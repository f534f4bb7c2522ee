#include "app/TextBatch.h"

#include <exception>

#include "app/Diagnostics.h"

namespace {

/// Returns whether no text of the file failed.
bool process_file(const std::string& path, char separator, const std::optional<std::string>& failed,
                  const TextProcess& process, TextOutput& output) {
    bool good = true;
    TextFile file(path, separator);
    for (std::string_view text; file.next(text);) {
        std::optional<std::string> result;
        try {
            result = process(file, text);
        } catch (const std::exception& error) {
            report(file.name(), file.number(), error.what());
            result = failed;
            good = false;
        }
        if (!result) continue;
        *result += separator;
        output.write(*result);
    }
    return good;
}

}  // namespace

bool process_texts(const TextBatch& batch, const std::optional<std::string>& failed,
                   const TextProcess& process) {
    TextOutput output;
    bool good = true;
    const auto process_path = [&](const std::string& path) {
        try {
            good = process_file(path, batch.separator, failed, process, output) && good;
        } catch (const InputError& error) {
            report(error.what());
            good = false;
        }
    };
    if (batch.files.empty()) process_path("-");
    for (const std::string& path : batch.files) process_path(path);
    output.close();
    return good;
}

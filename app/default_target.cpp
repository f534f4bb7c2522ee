#include "app/default_target.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "markup/RichTextTarget.h"

namespace {

std::string_view variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

}  // namespace

const char* default_target(const char* otherwise) {
    if (isatty(STDOUT_FILENO) == 0) return otherwise;
    return variable("NO_COLOR").empty() && variable("TERM") != "dumb" ? "ansi" : "unicode";
}

const char* target_of_path(const std::string& path, const char* otherwise) {
    const std::string ending = std::filesystem::path(path).extension().string();
    const char* name = otherwise;
    // Of several with one ending the last is the one that is made for files of their own.
    for (const RichTextTarget& target : rich_text_targets()) {
        if (ending == std::string(".") + target.ending) name = target.name;
    }
    return name;
}

#include "cli/default_target.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "entries/cif_text.h"
#include "tasks/row_named.h"

namespace {

std::string_view variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

}  // namespace

const RichTextTarget* target_of_terminal() {
    using Use = RichTextTarget::Use;
    if (isatty(STDOUT_FILENO) == 0) return nullptr;
    const bool has_colors = variable("NO_COLOR").empty() && variable("TERM") != "dumb";
    return &rich_text_target_for(has_colors ? Use::terminal : Use::plain_terminal);
}

const Output* output_of(std::span<const Output> outputs, RichTextTarget::Use otherwise) {
    const RichTextTarget* target = target_of_terminal();
    if (!target) target = &rich_text_target_for(otherwise);
    return row_named(outputs, target->name);
}

const Output* output_of_path(std::span<const Output> outputs, const std::string& path) {
    const std::string ending = in_lower_case(std::filesystem::path(path).extension().string());
    if (ending.size() < 2) {
        return row_named(outputs, rich_text_target_for(RichTextTarget::Use::page).name);
    }
    const Output* found = nullptr;
    // Of several with one ending the last is the one that is made for files of their own.
    for (const Output& output : outputs) {
        const char* const its_ending = output.target ? output.target->ending : output.name;
        if (ending == std::string(".") + its_ending) found = &output;
    }
    return found;
}

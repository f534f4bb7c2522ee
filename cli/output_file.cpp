#include "cli/output_file.h"

#include <filesystem>

#include "cli/InputFile.h"
#include "cli/default_target.h"
#include "cli/report.h"

void add_output_option(CLI::App& command, std::string& path) {
    command
        .add_option("-o,--output", path,
                    "Write to this file, -: standard output; html5, also for a file without "
                    "ending, is a page")
        ->check([](const std::string& name) {
            return name.empty() ? "expected the name of a file" : std::string();
        })
        ->type_name("FILE");
}

const Output* output_for(std::span<const Output> outputs, const std::string& path) {
    if (path.empty()) return output_of(outputs, RichTextTarget::Use::plain_terminal);
    const Output* const output = output_of_path(outputs, path);
    if (!output) {
        report(path + ": no target writes " + std::filesystem::path(path).extension().string() +
               " files; name one with --to");
    }
    return output;
}

std::unique_ptr<TextOutput> begin_output(const std::string& path,
                                         const std::vector<Place>& places) {
    auto output =
        path.empty() ? std::make_unique<TextOutput>() : std::make_unique<TextOutput>(path);
    for (const Place& place : places) {
        if (output->is_at(place.path)) throw InputError(place.path + ": input file is output file");
    }
    return output;
}

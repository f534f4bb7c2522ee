#include <optional>
#include <vector>

#include "cli/Command.h"
#include "cli/EntryFile.h"
#include "cli/TextOutput.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "output/layouts.h"
#include "tasks/EntryFields.h"

namespace {

class ShowCommand : public Command {
public:
    int run() override {
        if (path_ == "-") path_.clear();
        if (!to_) to_ = path_.empty() ? output_of(show_outputs(), Use::database) : output_of_path();
        const std::unique_ptr<TextOutput> output =
            path_.empty() ? std::make_unique<TextOutput>() : std::make_unique<TextOutput>(path_);
        for (const std::string& file : files_) {
            if (output->is_at(file)) throw InputError(file + ": input file is output file");
        }
        return show(*output) ? exit_success : exit_failure;
    }

private:
    using Use = RichTextTarget::Use;

    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("show", "Shows the fields of entries in CIF files, styled");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        add_field_options(command, choices, fields_);
        command.add_option("--find", term_,
                           "Highlight this in every field, compared as suits the field");
        add_row_option(command, choices, "--to", to_, show_outputs(),
                       "What to write; unless given, as the ending of the file says, ansi on a "
                       "terminal and tevo elsewhere");
        command
            .add_option("-o,--output", path_,
                        "Write to this file, -: standard output; html5, also for unknown endings, "
                        "is a page")
            ->check([](const std::string& path) {
                return path.empty() ? "expected the name of a file" : std::string();
            })
            ->type_name("FILE");
        command.add_option("FILE", files_, "CIF files; -: standard input")->required();
    }

    /// What the ending of the file says, and a page for others.
    const Output* output_of_path() const {
        if (path_.ends_with(".json")) return row_named(show_outputs(), "json");
        const RichTextTarget* const target = target_of_path(path_);
        return row_named(show_outputs(),
                         target ? target->name : rich_text_target_for(Use::page).name);
    }

    /// Shows one file after the other; returns whether nothing was reported.
    bool show(TextOutput& output) const {
        const std::unique_ptr<EntryLayout> layout = make_entry_layout(*to_, !path_.empty());
        const std::vector<Field> wanted = fields_.list();
        bool good = true;
        bool shown_any = false;
        output.write(layout->head("Crystal structures"));
        for (const std::string& file : files_) {
            EntryFile entries(file);
            for (std::optional<CifEntry> entry; entries.next(entry);) {
                EntryFields shown(*entry, wanted, term_);
                for (Problem& problem : shown.problems) {
                    problem.file = file;
                    report(problem);
                    good = false;
                }
                output.write(layout->entry(file, std::string(entry->block.name()), shown.fields));
                shown_any = true;
            }
            good = good && entries.good();
        }
        // A file in that place is worth more than one without any entry.
        if (!good && !shown_any && !path_.empty()) return false;
        output.write(layout->foot());
        output.close();
        return good;
    }

    const Output* to_ = nullptr;
    std::string path_;  // of the file to write; empty: standard output
    ChosenFields fields_;
    std::string term_;  // searched in every field in the field's own way; empty: no search
    std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<Command> make_show_command() { return std::make_unique<ShowCommand>(); }

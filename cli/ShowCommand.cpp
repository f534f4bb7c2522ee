#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/EntryBatch.h"
#include "cli/Progress.h"
#include "cli/TextOutput.h"
#include "cli/options.h"
#include "cli/output_file.h"
#include "cli/report.h"
#include "cli/terms.h"
#include "output/layouts.h"
#include "tasks/EntryFinder.h"
#include "tasks/Losses.h"

namespace {

class ShowCommand : public Command {
public:
    int run() override {
        if (!places_.are_named()) {
            report("show needs a FILE or --files-from (lmrtext show --help says more)");
            return exit_trouble;
        }
        if (term_) finder_.emplace(fields_.list(), terms_of({*term_}, {}), Folding());
        if (path_ == "-") path_.clear();
        if (!to_) to_ = output_for(show_outputs(), path_);
        if (!to_) return exit_trouble;
        std::vector<Place> places = places_.cif_files();
        const std::unique_ptr<TextOutput> output = begin_output(path_, places);
        return show(std::move(places), *output) ? exit_success : exit_failure;
    }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("show", "Shows the fields of entries in CIF files, styled");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        add_field_options(command, choices, fields_);
        command.add_option("--find", term_,
                           "Highlight this term in every field and tell what is found as what; "
                           "lmrtext find --help tells of terms");
        add_row_option(command, choices, "--to", to_, show_outputs(),
                       "What to write; unless given, as the ending of the file says, ansi on a "
                       "terminal and unicode elsewhere");
        add_output_option(command, path_);
        add_position_options(command, choices, positions_);
        add_jobs_option(command, jobs_, "entries");
        add_progress_option(command, progress_);
        add_place_options(command, places_);
    }

    /// Lays out entries of a file; for several threads at a time.
    ProcessedEntries shown(const std::vector<Field>& wanted, std::optional<Losses> losses,
                           const std::string& file, std::span<const CifEntry> entries) const {
        ProcessedEntries done;
        const std::unique_ptr<EntryLayout> layout =
            make_entry_layout(*to_, !path_.empty(), wanted, positions_.chosen());
        for (const CifEntry& entry : entries) {
            EntryFields fields(entry, wanted, finder_ ? &*finder_ : nullptr);
            done.problems.insert(done.problems.end(), entry.problems.begin(), entry.problems.end());
            for (Problem& problem : fields.problems) {
                problem.file = file;
                done.problems.push_back(std::move(problem));
            }
            for (const EntryField& field : fields.fields) {
                if (losses) losses->note_styles(field.item, done.problems);
            }
            done.parts.push_back(
                layout->entry(file, std::string(entry.block.name()), fields.fields));
            if (losses) losses->note_characters(done.parts.back().text, done.problems, true);
        }
        done.count = entries.size();
        return done;
    }

    /// Shows one entry after the other; returns whether nothing was reported.
    bool show(std::vector<Place> places, TextOutput& output) const {
        const std::vector<Field> wanted = fields_.list();
        std::optional<Losses> losses;
        if (to_->target) losses.emplace(*to_->target);
        EntryBatch batch(std::move(places), jobs_,
                         [&](const std::string& file, std::span<const CifEntry> entries) {
                             return shown(wanted, losses, file, entries);
                         });
        const std::unique_ptr<EntryLayout> layout =
            make_entry_layout(*to_, !path_.empty(), wanted, positions_.chosen());
        Progress progress(progress_ && !output.is_terminal(), "entries", batch.places());
        unsigned long count = 0;
        output.write(layout->head("Crystal structures"));
        for (ProcessedEntries done; batch.next(done);) {
            for (LaidOutPart& part : done.parts) output.write(layout->add(std::move(part)));
            count += done.count;
            progress.update(count, batch.places_read());
        }
        // A file in that place is worth more than one without any entry.
        if (!batch.good() && count == 0 && !path_.empty()) return false;
        output.write(layout->foot());
        output.close();
        return batch.good();
    }

    const Output* to_ = nullptr;
    std::string path_;  // of the file to write; empty: standard output
    ChosenFields fields_;
    std::optional<std::string> term_;
    std::optional<EntryFinder> finder_;  // of the term
    ChosenPositions positions_;          // in JSON
    unsigned int jobs_ = 1;
    bool progress_ = true;
    Places places_;
};

}  // namespace

std::unique_ptr<Command> make_show_command() { return std::make_unique<ShowCommand>(); }

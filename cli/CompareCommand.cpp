#include <vector>

#include "cli/Command.h"
#include "cli/EntryStream.h"
#include "cli/Progress.h"
#include "cli/TextOutput.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "output/layouts.h"
#include "tasks/EntryComparison.h"
#include "tasks/Losses.h"

namespace {

constexpr int exit_difference = 1;

class CompareCommand : public Command {
public:
    int run() override {
        if (!to_) to_ = target_of_terminal();
        if (!to_) to_ = &rich_text_target_for(RichTextTarget::Use::plain_terminal);
        EntryStream left(places_of(left_)), right(places_of(right_));
        bool same = compare(left, right);
        if (left.count() != right.count() && left.good() && right.good()) {
            report(left_ + " has " + std::to_string(left.count()) + " entries, " + right_ +
                   " has " + std::to_string(right.count()));
        }
        same = same && left.count() == right.count();
        if (!good_ || !left.good() || !right.good()) return exit_trouble;
        return same ? exit_success : exit_difference;
    }
    int trouble() const override { return exit_trouble; }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand(
            "compare", "Compares the entries of two CIF files or folders, field by field");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        command.footer(
            "Lines begin with = where both sides are the same, with < and > where they differ; "
            "html5 is "
            "a page\nwith two columns. The exit status is 0 when all is the same, 1 when something "
            "differs and 2 on trouble.");
        add_field_options(command, choices, fields_);
        add_row_option(command, choices, "--to", to_, rich_text_targets(),
                       "What to write; unless given, ansi on a terminal and unicode elsewhere");
        add_progress_option(command, progress_);
        add_recursive_option(command, recursive_);
        command.add_option("A.cif", left_, "One side: a CIF file, or a folder with such")
            ->required();
        command.add_option("B.cif", right_, "The other side")->required();
    }

    std::vector<Place> places_of(const std::string& path) const {
        Places places;
        places.paths.push_back(path);
        places.recursive = recursive_;
        return places.cif_files();
    }

    /// Compares the entries in turn and reads all of both sides; returns whether those that have
    /// another are the same as it.
    bool compare(EntryStream& left, EntryStream& right) {
        TextOutput output;
        const std::unique_ptr<ComparisonLayout> layout = make_comparison_layout(*to_);
        const std::vector<Field> wanted = fields_.list();
        Losses losses(*to_);
        Progress progress(progress_ && !output.is_terminal(), "entries",
                          left.places() + right.places());
        bool same = true;
        output.write(layout->head("Comparison"));
        while (true) {
            const CifEntry* const left_entry = left.next();
            const CifEntry* const right_entry = right.next();
            if (!left_entry && !right_entry) break;
            if (!left_entry || !right_entry) continue;
            const EntryComparison compared({left.path(), *left_entry, wanted},
                                           {right.path(), *right_entry, wanted}, wanted, settings_,
                                           true);
            same = same && compared.same;
            std::vector<Problem> problems = compared.problems;
            for (const ComparedField& field : compared.fields) {
                for (const auto& item : {&field.left, &field.right}) {
                    if (*item) losses.note_styles(**item, problems);
                }
            }
            good_ = report(problems) && good_;
            output.write(layout->comparison({left.path(), std::string(left_entry->block.name())},
                                            {right.path(), std::string(right_entry->block.name())},
                                            compared.fields));
            progress.update(left.count(), left.places_read() + right.places_read());
        }
        output.write(layout->foot());
        output.close();
        return same;
    }

    const RichTextTarget* to_ = nullptr;
    ChosenFields fields_;
    ComparisonSettings settings_;
    std::string left_, right_;
    bool recursive_ = false;
    bool progress_ = true;
    bool good_ = true;  // nothing was reported
};

}  // namespace

std::unique_ptr<Command> make_compare_command() { return std::make_unique<CompareCommand>(); }

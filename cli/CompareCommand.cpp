#include "cli/Command.h"
#include "cli/Comparison.h"
#include "cli/comparison_options.h"
#include "cli/options.h"
#include "cli/output_file.h"
#include "cli/report.h"
#include "output/layouts.h"

namespace {

constexpr int exit_difference = 1;

class CompareCommand : public Command {
public:
    int run() override {
        if (path_ == "-") path_.clear();
        if (left_ == "-" && right_ == "-") {
            report("standard input can be one side only");
            return exit_trouble;
        }
        if (!options_.to) options_.to = output_for(compare_outputs(), path_);
        if (!options_.to) return exit_trouble;
        // Programs that read it choose for themselves.
        options_.all = options_.all || !options_.to->target;
        options_.wanted = fields_.list();
        options_.positions = positions_.chosen();
        ComparedSide left(left_, recursive_), right(right_, recursive_);
        std::vector<Place> places = left.places();
        places.insert(places.end(), right.places().begin(), right.places().end());
        const std::unique_ptr<TextOutput> output = begin_output(path_, places);
        Comparison comparison(options_, left, right, *output);
        comparison.run();
        // A file in that place is worth more than one with nothing.
        if (comparison.has_sides() || path_.empty()) output->close();
        if (!comparison.good()) return exit_trouble;
        return comparison.same() ? exit_success : exit_difference;
    }
    int trouble() const override { return exit_trouble; }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand(
            "compare", "Compares entries of CIF files or folders, field by field, and says why");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        command.footer(
            "Entries find each other by identifiers, which are the database's numbers or else the "
            "names of the\n"
            "blocks in the same file; then by composition and reduced cell, within 1 %, and by the "
            "compound's\n"
            "name. Lines begin with < and > where the sides differ, with ~ where they do in "
            "nothing "
            "that counts\n"
            "and with = where they are the same; what differs is bold and coloured, or between [- "
            "-] and {+ +}.\n"
            "The exit status is 0 when nothing differs that counts, 1 when something does and 2 on "
            "trouble.\n"
            "Example:\n"
            "  lmrtext compare --all 'before.cif:I' 'after.cif:I'");
        add_field_options(command, choices, fields_);
        command.add_flag("--all", options_.all,
                         "Also what is equal, and what differs in nothing that counts; json has it "
                         "always");
        command.add_flag("--summary", options_.only_summary,
                         "How many entries and fields differ, and nothing else");
        add_comparison_options(command, options_.settings);
        add_row_option(command, choices, "--to", options_.to, compare_outputs(),
                       "What to write; unless given, as the ending of the file says, ansi on a "
                       "terminal and unicode elsewhere");
        add_output_option(command, path_);
        add_position_options(command, choices, positions_);
        add_progress_option(command, options_.shows_progress);
        add_recursive_option(command, recursive_);
        command
            .add_option(
                "A.cif", left_,
                "One side: a CIF file, a folder with such, or a block of a file, FILE:BLOCK")
            ->required();
        command.add_option("B.cif", right_, "The other side")->required();
    }

    CompareOptions options_;
    std::string path_;  // of the file to write; empty: standard output
    ChosenFields fields_;
    ChosenPositions positions_;  // in JSON
    std::string left_, right_;
    bool recursive_ = false;
};

}  // namespace

std::unique_ptr<Command> make_compare_command() { return std::make_unique<CompareCommand>(); }

#include "cli/Command.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "output/text_lines.h"
#include "tasks/Field.h"

namespace {

constexpr int exit_no_match = 1;

class SearchCommand : public Command {
public:
    int run() override {
        if (!options_.to) options_.to = output_of(search_outputs(), RichTextTarget::Use::page);
        if (!options_.how) {
            report("search needs --how or --field (lmrtext search --help says more)");
            return exit_trouble;
        }
        if (!options_.how->takes(options_.term)) {
            report("'" + options_.term + "' is not a term for the search " + options_.how->name +
                   " (lmrtext search --help says more)");
            return exit_trouble;
        }
        options_.positions = positions_.chosen();
        const BatchOutcome outcome = batch_.process([&] { return make_search(options_); });
        if (!outcome.good) return exit_trouble;
        return outcome.matched ? exit_success : exit_no_match;
    }
    int trouble() const override { return exit_trouble; }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand(
            "search", "Searches texts, one a line, and highlights what matches a term");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        options_.from = row_named(sources(), "plain");
        command.footer(
            "What matches is bold, and green4 when the whole text matched in the search's own "
            "sense,\n"
            "otherwise blue. The exit status is 0 when something matched, 1 when nothing did and 2 "
            "on\n"
            "trouble. A text that fails is reported as FILE:LINE; the others go on. Example:\n"
            "  lmrtext search --how numeric --term 1.54 --tolerance 0.01 --to slices lengths.txt");
        add_row_option(command, choices, "--how", options_.how, search_kinds(),
                       "What is marked, and when a text matches as a whole");
        command
            .add_option_function<std::string>(
                "--field",
                [this](const std::string& label) {
                    const Field field = known_fields(field_named, label);
                    options_.from = field.source;
                    options_.how = field.search;
                },
                "Instead of --how and --from: as suits this field of an entry")
            ->type_name("LABEL");
        command.add_option("--term", options_.term, "What to search for")->required();
        add_tolerance_option(command, options_.settings);
        command
            .add_option(
                "--min-length", options_.settings.min_match_length,
                "The shortest run that a substring search marks, in characters; 3 unless given")
            ->check(CLI::Range(1U, longest_line));
        const auto fold = [this]() -> Folding& {
            std::optional<Folding>& folding = options_.settings.folding;
            return folding ? *folding : folding.emplace();
        };
        command.add_flag_callback(
            "--fold", [fold] { fold(); },
            "Before any search take for the same: capitals and small letters, letters with and "
            "without accents, dashes, primes and quotation marks, blanks, Greek letters and their "
            "names, raised, lowered and other forms of characters");
        add_umlauts_option(command, fold);
        add_row_option(command, choices, "--from", options_.from, sources(),
                       "What the texts are; plain unless given");
        add_row_option(command, choices, "--to", options_.to, search_outputs(),
                       "What to write; unless given, ansi on a terminal and html5 elsewhere");
        add_position_options(command, choices, positions_);
        command.add_flag("--matching", options_.only_matching, "Write only the texts that match");
        add_batch_options(command, batch_);
    }

    SearchOptions options_;
    ChosenPositions positions_;
    TextBatch batch_;
};

}  // namespace

std::unique_ptr<Command> make_search_command() { return std::make_unique<SearchCommand>(); }

#include "cli/Command.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "output/text_lines.h"

namespace {

class ConvertCommand : public Command {
public:
    int run() override {
        if (!options_.to) options_.to = target_of_terminal();
        if (!options_.to) {
            report(
                "convert needs --to where it does not write to a terminal (lmrtext convert --help "
                "says more)");
            return exit_trouble;
        }
        if (ascii_) options_.ascii = ascii_form_of(*options_.to);
        if (ascii_ && !options_.ascii) {
            report(std::string(options_.to->name) + " cannot be written in ASCII alone");
            return exit_trouble;
        }
        const BatchOutcome outcome = batch_.process([&] { return make_conversion(options_); });
        return outcome.good ? exit_success : exit_failure;
    }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("convert",
                                      "Converts texts, one a line, from one mark-up to another");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        command.footer(
            "A text that fails is reported as FILE:LINE and leaves an empty line; the others go on "
            "and\n"
            "the exit status is 1. Example:\n"
            "  printf '%s\\n' 'alpha-D-gluco!2$' | lmrtext convert --from tevo-name --to html5");
        add_row_option(command, choices, "--from", options_.from, sources(), "What the texts are")
            ->required();
        add_row_option(command, choices, "--to", options_.to, rich_text_targets(),
                       "What to write; on a terminal ansi unless given");
        command
            .add_option("--line-length", options_.line_length,
                        "Break lines after that many characters; 0: do not break")
            ->check(CLI::Range(0U, longest_line));
        command.add_flag("--ascii", ascii_)
            ->description(
                "Write ASCII alone: the nearest letters, or references in cif-text and HTML");
        add_batch_options(command, batch_);
    }

    bool ascii_ = false;
    ConvertOptions options_;
    TextBatch batch_;
};

}  // namespace

std::unique_ptr<Command> make_convert_command() { return std::make_unique<ConvertCommand>(); }

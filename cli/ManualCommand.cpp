#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/interface_texts.h"
#include "output/check_codes_page.h"

namespace {

class ManualCommand : public Command {
public:
    int run() override {
        TextOutput output;
        output.write(text());
        output.close();
        return exit_success;
    }

    bool tells_of_all() const override { return true; }

private:
    CLI::App* add_command(CLI::App& program) override {
        program_ = &program;
        return program.add_subcommand("manual", "Prints the manual page");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        choices_ = &choices;
        CLI::Option* const in_markdown =
            command.add_flag("--markdown", in_markdown_)->description("In Markdown");
        command.add_flag("--checks", of_checks_)
            ->description("What check finds, with examples, in Markdown")
            ->excludes(in_markdown);
    }

    std::string text() const {
        if (of_checks_) return check_codes_page();
        return in_markdown_ ? manual_in_markdown(*program_, *choices_)
                            : manual_page(*program_, *choices_, LMRTEXT_VERSION);
    }

    const CLI::App* program_ = nullptr;
    const Choices* choices_ = nullptr;
    bool in_markdown_ = false;
    bool of_checks_ = false;
};

}  // namespace

std::unique_ptr<Command> make_manual_command() { return std::make_unique<ManualCommand>(); }

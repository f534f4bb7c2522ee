#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/interface_texts.h"

namespace {

class ManualCommand : public Command {
public:
    int run() override {
        TextOutput output;
        output.write(in_markdown_ ? manual_in_markdown(*program_, *choices_)
                                  : manual_page(*program_, *choices_, LMRTEXT_VERSION));
        output.close();
        return exit_success;
    }

private:
    CLI::App* add_command(CLI::App& program) override {
        program_ = &program;
        return program.add_subcommand("manual", "Prints the manual page");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        choices_ = &choices;
        command.add_flag("--markdown", in_markdown_)->description("In Markdown");
    }

    const CLI::App* program_ = nullptr;
    const Choices* choices_ = nullptr;
    bool in_markdown_ = false;
};

}  // namespace

std::unique_ptr<Command> make_manual_command() { return std::make_unique<ManualCommand>(); }

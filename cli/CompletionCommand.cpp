#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/interface_texts.h"
#include "tasks/row_named.h"

namespace {

/// A shell, and the script that completes commands in it.
struct Shell {
    const char* name;
    std::string (*script)(const CLI::App& program, const Choices& choices);
};

constexpr Shell shells[] = {
    {"bash", bash_completion}, {"zsh", zsh_completion}, {"fish", fish_completion}};

class CompletionCommand : public Command {
public:
    int run() override {
        const Shell& shell = *row_named(std::span<const Shell>(shells), shell_);
        TextOutput output;
        output.write(shell.script(*program_, *choices_));
        output.close();
        return exit_success;
    }

    bool tells_of_all() const override { return true; }

private:
    CLI::App* add_command(CLI::App& program) override {
        program_ = &program;
        return program.add_subcommand("completion",
                                      "Prints a script that completes commands in a shell");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        choices_ = &choices;
        ChoiceOption known{"bash, zsh or fish", {}};
        std::vector<std::string> names;
        for (const Shell& shell : shells) {
            known.values.push_back({shell.name, ""});
            names.emplace_back(shell.name);
        }
        CLI::Option* const option = command.add_option("SHELL", shell_, known.purpose)
                                        ->required()
                                        ->check(CLI::IsMember(names));
        choices[option] = std::move(known);
    }

    const CLI::App* program_ = nullptr;
    const Choices* choices_ = nullptr;
    std::string shell_;
};

}  // namespace

std::unique_ptr<Command> make_completion_command() { return std::make_unique<CompletionCommand>(); }

#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/options.h"
#include "tasks/Field.h"

namespace {

class FieldsCommand : public Command {
public:
    int run() override {
        TextOutput output;
        for (const Field& field : view_->fields()) {
            output.write(std::string(field.label) + '\t' + field.group + '\n');
        }
        output.close();
        return exit_success;
    }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("fields", "Lists the labels and groups of an entry's fields");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        view_ = row_named(views(), "internal");
        add_row_option(command, choices, "--view", view_, views(),
                       "Which fields; internal unless given");
    }

    const View* view_ = nullptr;
};

}  // namespace

std::unique_ptr<Command> make_fields_command() { return std::make_unique<FieldsCommand>(); }

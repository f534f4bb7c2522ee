#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/options.h"
#include "tasks/Field.h"

namespace {

class FieldsCommand : public Command {
public:
    int run() override {
        std::vector<LMRFieldNames::TextID> fields;
        view_->list(fields);
        TextOutput output;
        for (const LMRFieldNames::TextID id : fields) {
            output.write(std::string(LMRFieldNames::text(id)) + '\t' + group_of(id) + '\n');
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

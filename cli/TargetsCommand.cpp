#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "markup/RichTextTarget.h"

namespace {

class TargetsCommand : public Command {
public:
    int run() override {
        TextOutput output;
        for (const RichTextTarget& target : rich_text_targets()) {
            output.write(std::string(target.name) + "\t." + target.ending + '\t' + target.help +
                         '\n');
        }
        output.close();
        return exit_success;
    }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("targets",
                                      "Lists what can be written: name, ending of files, content");
    }
};

}  // namespace

std::unique_ptr<Command> make_targets_command() { return std::make_unique<TargetsCommand>(); }

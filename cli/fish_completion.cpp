#include "cli/command_description.h"
#include "cli/interface_texts.h"

std::string fish_completion(const CLI::App& program, const Choices& choices) {
    const auto quoted = [](const std::string& text) { return '\'' + escaped(text, "\\'") + '\''; };
    std::string lines = "# fish completion of lmrtext\n";
    for (const CLI::App* command : commands_of(program)) {
        const std::string& name = command->get_name();
        lines += "complete -c lmrtext -f -n __fish_use_subcommand -a " + name + " -d " +
                 quoted(command->get_description()) + '\n';
        for (const CLI::Option* option : command->get_options()) {
            const auto known = choices.find(option);
            if (flags_of(*option).empty() && known == choices.end()) continue;
            lines += "complete -c lmrtext -n '__fish_seen_subcommand_from " + name + '\'';
            for (const std::string& flag : option->get_snames()) lines += " -s " + flag;
            for (const std::string& flag : option->get_lnames()) lines += " -l " + flag;
            if (known != choices.end()) {
                lines += " -x -a " + quoted(names_of(known->second));
            } else if (takes_value(*option)) {
                lines += " -r";
            }
            lines += " -d " + quoted(brief(purpose_of(*option, choices))) + '\n';
        }
    }
    return lines;
}

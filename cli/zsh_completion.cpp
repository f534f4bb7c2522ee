#include <algorithm>

#include "cli/command_description.h"
#include "cli/interface_texts.h"

std::string zsh_completion(const CLI::App& program, const Choices& choices) {
    const auto quoted = [](std::string text) {
        std::replace(text.begin(), text.end(), '\'', '"');  // it stands between such marks
        return escaped(text, "[]:\\");
    };
    std::string arguments;
    const auto commands = commands_of(program);
    for (const CLI::App* command : commands) {
        std::string positional = "file:_files";
        arguments += "        " + command->get_name() + ") _arguments";
        for (const CLI::Option* option : command->get_options()) {
            const auto known = choices.find(option);
            if (known != choices.end() && flags_of(*option).empty()) {
                positional = "value:(" + names_of(known->second) + ')';
            }
            for (const std::string& flag : flags_of(*option)) {
                arguments += " \\\n            '*" + flag + '[' +
                             quoted(brief(purpose_of(*option, choices))) + ']';
                if (known != choices.end()) {
                    arguments += ":value:(" + names_of(known->second) + ')';
                } else if (takes_value(*option)) {
                    arguments += ":value:_default";
                }
                arguments += '\'';
            }
        }
        arguments += " \\\n            '*:" + positional + "' ;;\n";
    }
    return "#compdef lmrtext\n"
           "_lmrtext() {\n"
           "    if ((CURRENT == 2)); then\n"
           "        compadd " +
           names_of(commands) +
           "\n"
           "        return\n"
           "    fi\n"
           "    local command=$words[2]\n"
           "    shift words\n"
           "    ((CURRENT--))\n"
           "    case $command in\n" +
           arguments +
           "    esac\n"
           "}\n"
           "_lmrtext \"$@\"\n";
}

#include "cli/command_description.h"
#include "cli/interface_texts.h"

std::string bash_completion(const CLI::App& program, const Choices& choices) {
    const auto commands = commands_of(program);
    std::string values, options;
    for (const CLI::App* command : commands) {
        const std::string& name = command->get_name();
        std::vector<std::string> all;
        for (const CLI::Option* option : command->get_options()) {
            std::vector<std::string> flags = flags_of(*option);
            all.insert(all.end(), flags.begin(), flags.end());
            const auto known = choices.find(option);
            if (known == choices.end()) continue;
            if (flags.empty()) flags.push_back(name);  // its value stands behind the command
            const std::string words = names_of(known->second);
            for (const std::string& flag : flags) {
                values.append("        '").append(name).append(" ").append(flag);
                values.append("') words='").append(words).append("' ;;\n");
            }
        }
        options += "        " + name + ") options='" + joined(all, " ") + "' ;;\n";
    }
    return "# bash completion of lmrtext\n"
           "_lmrtext() {\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} words='' options=''\n"
           "    COMPREPLY=()\n"
           "    if ((COMP_CWORD == 1)); then\n"
           "        COMPREPLY=($(compgen -W '" +
           names_of(commands) +
           "' -- \"$current\"))\n"
           "        return\n"
           "    fi\n"
           "    case \"${COMP_WORDS[1]} ${COMP_WORDS[COMP_CWORD - 1]}\" in\n" +
           values +
           "    esac\n"
           "    case ${COMP_WORDS[1]} in\n" +
           options +
           "    esac\n"
           "    [[ -n $words || $current != -* ]] || words=$options\n"
           "    [[ -z $words ]] || COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
           "}\n"
           "complete -o default -F _lmrtext lmrtext\n";
}

#include "app/interface_texts.h"

#include <algorithm>
#include <sstream>
#include <string_view>

#include "finders/InputTextStyleFinder.h"
#include "markup/MarkdownRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

std::string joined(const std::vector<std::string>& words, const std::string& separator) {
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : separator) + word;
    return all;
}

/// The names of an option as they are typed; none for a positional argument.
std::vector<std::string> flags_of(const CLI::Option& option) {
    std::vector<std::string> flags;
    for (const std::string& name : option.get_snames()) flags.push_back('-' + name);
    for (const std::string& name : option.get_lnames()) flags.push_back("--" + name);
    return flags;
}

bool takes_value(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

std::vector<const CLI::App*> commands_of(const CLI::App& program) {
    return program.get_subcommands([](const CLI::App* /*command*/) { return true; });
}

std::string names_of(const std::vector<const CLI::App*>& commands) {
    std::string names;
    for (const CLI::App* command : commands) names += command->get_name() + ' ';
    return names;
}

/// What the option is for, without its values.
std::string purpose_of(const CLI::Option& option, const Choices& choices) {
    const auto known = choices.find(&option);
    const std::string purpose =
        known == choices.end() ? option.get_description() : known->second.purpose;
    return option.get_required() && !flags_of(option).empty() ? purpose + " (required)" : purpose;
}

std::string names_of(const ChoiceOption& option) {
    std::vector<std::string> names;
    for (const Choice& value : option.values) names.push_back(value.name);
    return joined(names, " ");
}

/// What the option takes, without the limits that CLI11 appends to the name.
std::string type_of(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    return type.substr(0, type.find(':'));
}

/// The values that options of one name take in all commands together.
struct ValueTable {
    std::string flag;
    std::vector<std::string> commands;
    struct Value {
        Choice choice;
        std::vector<std::string> commands;
    };
    std::vector<Value> values;

    /// What a value means, and where it may be given if not everywhere.
    std::string help(const Value& value) const {
        if (value.commands == commands) return value.choice.help;
        return value.choice.help + "; in " + joined(value.commands, " and ");
    }
};

/// The element for which `is_it` holds, or a new one behind the others.
template <class Element, class Condition>
Element& found_or_added(std::vector<Element>& list, Condition is_it) {
    const auto found = std::find_if(list.begin(), list.end(), is_it);
    return found == list.end() ? list.emplace_back() : *found;
}

std::vector<ValueTable> value_tables(const CLI::App& program, const Choices& choices) {
    std::vector<ValueTable> tables;
    for (const CLI::App* command : commands_of(program)) {
        for (const CLI::Option* option : command->get_options()) {
            const auto known = choices.find(option);
            if (known == choices.end() || flags_of(*option).empty()) continue;
            const std::string flag = flags_of(*option).front();
            ValueTable& table = found_or_added(
                tables, [&](const ValueTable& candidate) { return candidate.flag == flag; });
            table.flag = flag;
            table.commands.push_back(command->get_name());
            for (const Choice& choice : known->second.values) {
                ValueTable::Value& value =
                    found_or_added(table.values, [&](const ValueTable::Value& candidate) {
                        return candidate.choice.name == choice.name;
                    });
                value.choice = choice;
                value.commands.push_back(command->get_name());
            }
        }
    }
    return tables;
}

/// The first clause of a description, which lists of completions have room for.
std::string brief(const std::string& description) {
    return description.substr(0, description.find_first_of(":;,"));
}

/// `text` with a backslash before each of `signs`.
std::string escaped(const std::string& text, std::string_view signs) {
    std::string result;
    for (const char c : text) {
        if (signs.find(c) != std::string_view::npos) result += '\\';
        result += c;
    }
    return result;
}

/// Text for roff: its own signs written out, and none that begins a request.
std::string roff(const std::string& text) {
    std::string result;
    for (const char c : text) {
        const bool begins_line = result.empty() || result.back() == '\n';
        if (begins_line && (c == '.' || c == '\'')) result += "\\&";
        if (c == '\\') {
            result += "\\e";
        } else if (c == '-') {
            result += "\\-";
        } else {
            result += c;
        }
    }
    return result;
}

/// A term of a list of definitions in roff, and what it means.
std::string roff_entry(const std::string& term, const std::string& meaning) {
    return ".TP\n\\fB" + term + "\\fR\n" + roff(meaning) + '\n';
}

std::string manual_option(const CLI::Option& option, const Choices& choices) {
    const std::vector<std::string> flags = flags_of(option);
    std::string names = roff(flags.empty() ? option.get_name() : joined(flags, ", "));
    if (!flags.empty() && takes_value(option)) names += " \\fI" + roff(type_of(option)) + "\\fB";
    return roff_entry(names, purpose_of(option, choices));
}

/// Text for Markdown, where a bar would end the cell of a table.
std::string markdown(const std::string& text) {
    MarkdownRichTextGenerator generator;
    const TextItem item(make_handle<InputTextStyleFinder>(), text);
    return item.mark_up_text(generator);
}

std::string markdown_option(const CLI::Option& option, const Choices& choices) {
    std::vector<std::string> names = flags_of(option);
    if (names.empty()) names.push_back(option.get_name());
    if (takes_value(option) && !flags_of(option).empty()) names.back() += ' ' + type_of(option);
    return "| `" + joined(names, "`, `") + "` | " + markdown(purpose_of(option, choices)) + " |\n";
}

/// The lines of a footer, of which those with blanks in front are shell commands.
std::string markdown_footer(const std::string& footer) {
    std::string result;
    bool in_code = false;
    std::istringstream lines(footer);
    for (std::string line; std::getline(lines, line);) {
        const bool is_code = line.starts_with(' ');
        if (is_code && !in_code) result += '\n';
        in_code = is_code;
        result += (is_code ? "  " + line : markdown(line)) + '\n';
    }
    return result;
}

}  // namespace

std::string manual_page(const CLI::App& program, const Choices& choices,
                        const std::string& version) {
    std::string page = ".TH LMRTEXT 1 \"\" \"lmrtext " + version +
                       "\" \"User Commands\"\n.SH NAME\nlmrtext \\- " +
                       roff(program.get_description()) +
                       "\n.SH SYNOPSIS\n.B lmrtext\n.I COMMAND\n[\\fIOPTION\\fR]... "
                       "[\\fIFILE\\fR]...\n.SH COMMANDS\n";
    for (const CLI::App* command : commands_of(program)) {
        page +=
            ".SS " + roff(command->get_name()) + '\n' + roff(command->get_description()) + ".\n";
        for (const CLI::Option* option : command->get_options()) {
            page += manual_option(*option, choices);
        }
        const std::string footer = command->get_footer();
        if (!footer.empty()) page += ".PP\n.nf\n" + roff(footer) + "\n.fi\n";
    }
    page += ".SH VALUES\n";
    for (const ValueTable& table : value_tables(program, choices)) {
        page += ".SS " + roff(table.flag) + '\n';
        for (const ValueTable::Value& value : table.values) {
            page += roff_entry(roff(value.choice.name), table.help(value));
        }
    }
    return page;
}

std::string manual_in_markdown(const CLI::App& program, const Choices& choices) {
    std::string page =
        "# Commands\n\n"
        "What the manual page and, command by command, `--help` say too. This page is what\n"
        "`lmrtext manual --markdown` prints.\n\n";
    for (const CLI::App* command : commands_of(program)) {
        page += "## lmrtext " + command->get_name() + "\n\n" +
                markdown(command->get_description()) + ".\n\n";
        std::string rows;
        for (const CLI::Option* option : command->get_options()) {
            if (option != command->get_help_ptr()) rows += markdown_option(*option, choices);
        }
        if (!rows.empty()) page += "| option | |\n| --- | --- |\n" + rows + '\n';
        const std::string footer = command->get_footer();
        if (!footer.empty()) page += markdown_footer(footer) + '\n';
    }
    page += "## Values\n";
    for (const ValueTable& table : value_tables(program, choices)) {
        page += "\n| `" + table.flag + "` | |\n| --- | --- |\n";
        for (const ValueTable::Value& value : table.values) {
            page += "| `" + value.choice.name + "` | " + markdown(table.help(value)) + " |\n";
        }
    }
    return page;
}

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

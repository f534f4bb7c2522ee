#include "cli/command_description.h"
#include "cli/interface_texts.h"

namespace {

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

#include <string_view>

#include "cli/command_description.h"
#include "cli/interface_texts.h"
#include "cli/manual_sections.h"

namespace {

/// What roff writes otherwise than as a character of ASCII, or takes for its own.
std::string_view roff_name(char c) {
    switch (c) {
        case '\\':
            return "\\e";
        case '-':
            return "\\-";
        case '\'':
            return "\\(aq";
        case '`':
            return "\\(ga";
        case '^':
            return "\\(ha";
        case '~':
            return "\\(ti";
        default:
            return {};
    }
}

/// Text for roff, none of which begins a request.
std::string roff(const std::string& text) {
    std::string result;
    for (const char c : text) {
        const bool begins_line = result.empty() || result.back() == '\n';
        if (begins_line && c == '.') result += "\\&";
        const std::string_view name = roff_name(c);
        if (name.empty()) {
            result += c;
        } else {
            result += name;
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

std::string in_capitals(std::string text) {
    for (char& c : text) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return text;
}

std::string manual_section(const ManualSection& section) {
    std::string text = ".SH " + in_capitals(section.title) + '\n';
    for (const ManualSection::Entry& entry : section.entries) {
        switch (section.form) {
            case ManualSection::Form::definitions:
                text += roff_entry(roff(entry.term), entry.text);
                break;
            case ManualSection::Form::commands:
                text.append(".PP\n").append(roff(entry.term)).append(":\n.PP\n.RS\n.nf\n");
                text.append(roff(entry.text)).append("\n.fi\n.RE\n");
                break;
            case ManualSection::Form::list:
                text.append(roff(entry.term));
                text += &entry == &section.entries.back() ? "\n" : ",\n";
                break;
        }
    }
    return text;
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
    for (const ManualSection& section : manual_sections()) page += manual_section(section);
    return page;
}

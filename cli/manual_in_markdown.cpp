#include <sstream>

#include "cli/command_description.h"
#include "cli/interface_texts.h"
#include "cli/manual_sections.h"
#include "finders/InputTextStyleFinder.h"
#include "markup/MarkdownRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

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

std::string markdown_section(const ManualSection& section) {
    std::string text = std::string("\n## ") + section.title + "\n\n";
    if (section.form == ManualSection::Form::definitions) text += "| | |\n| --- | --- |\n";
    for (const ManualSection::Entry& entry : section.entries) {
        switch (section.form) {
            case ManualSection::Form::definitions:
                text.append("| `").append(entry.term).append("` | ");
                text.append(markdown(entry.text)).append(" |\n");
                break;
            case ManualSection::Form::commands:
                if (&entry != &section.entries.front()) text += '\n';
                text.append(markdown(entry.term)).append(":\n\n```\n");
                text.append(entry.text).append("\n```\n");
                break;
            case ManualSection::Form::list:
                text.append("`").append(entry.term);
                text += &entry == &section.entries.back() ? "`\n" : "`, ";
                break;
        }
    }
    return text;
}

}  // namespace

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
    for (const ManualSection& section : manual_sections()) page += markdown_section(section);
    return page;
}

#include "cli/command_description.h"

#include <algorithm>

namespace {

/// The element for which `is_it` holds, or a new one behind the others.
template <class Element, class Condition>
Element& found_or_added(std::vector<Element>& list, Condition is_it) {
    const auto found = std::find_if(list.begin(), list.end(), is_it);
    return found == list.end() ? list.emplace_back() : *found;
}

}  // namespace

std::string joined(const std::vector<std::string>& words, const std::string& separator) {
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : separator) + word;
    return all;
}

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

std::string type_of(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    return type.substr(0, type.find(':'));
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

std::string brief(const std::string& description) {
    return description.substr(0, description.find_first_of(":;,"));
}

std::string escaped(const std::string& text, std::string_view signs) {
    std::string result;
    for (const char c : text) {
        if (signs.find(c) != std::string_view::npos) result += '\\';
        result += c;
    }
    return result;
}

std::string ValueTable::help(const Value& value) const {
    if (value.commands == commands) return value.choice.help;
    return value.choice.help + "; in " + joined(value.commands, " and ");
}

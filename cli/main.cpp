#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <functional>
#include <new>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/command_description.h"
#include "cli/options.h"
#include "cli/report.h"

namespace {

using Commands = std::vector<std::unique_ptr<Command>>;

/// In the order in which help and manual tell of them.
Commands all_commands() {
    Commands commands;
    for (const auto make :
         {make_convert_command, make_show_command, make_find_command, make_fields_command,
          make_search_command, make_compare_command, make_check_command, make_set_command,
          make_targets_command, make_manual_command, make_completion_command}) {
        commands.push_back(make());
    }
    return commands;
}

/// Adds the options of the commands that the arguments name: those of all take as long as the
/// program's start.
void add_options(const Commands& commands, std::span<char* const> arguments, Choices& choices) {
    const auto is_named = [arguments](const auto& command) {
        return std::count(arguments.begin(), arguments.end(), command->name()) != 0;
    };
    const bool all = std::any_of(commands.begin(), commands.end(), [&](const auto& command) {
        return command->tells_of_all() && is_named(command);
    });
    for (const auto& command : commands) {
        if (all || is_named(command)) command->add_options(choices);
    }
}

/// Runs a command; `trouble` is the exit status when it cannot go on.
int guarded(int trouble, const std::function<int()>& command) {
    try {
        return command();
    } catch (const std::system_error& error) {
        // That the reader has seen enough and gone is not reported.
        if (error.code().value() != EPIPE) report(error.what());
    } catch (const std::bad_alloc&) {
        report("out of memory");
    } catch (const std::exception& error) {
        report(error.what());
    }
    return trouble;
}

/// Writes what CLI11 takes for an error, help and version.
int show_help(const CLI::App& program, const CLI::ParseError& error) {
    std::ostringstream text;
    program.exit(error, text);
    TextOutput output;
    output.write(text.str());
    output.close();
    return 0;
}

/// Occupies the standard descriptors that are closed with ones that refuse reading or writing.
/// Otherwise a file opened later would take their numbers and get what is written to them.
void occupy_standard_descriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) != -1) continue;
        open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

/// An option with nothing behind its "=", for which CLI11 would take the next argument.
bool has_empty_value(std::string_view argument) {
    return argument.starts_with("--") && argument.find('=') == argument.size() - 1;
}

/// CLI11 would make a list of an argument like "[x,y]". While it parses them, such arguments end
/// with a NUL, which none has of itself.
void parse_as_they_are(CLI::App& program, int argc, char** argv) {
    for (CLI::App* command : program.get_subcommands({})) {
        for (CLI::Option* option : command->get_options()) {
            option->transform(
                [](const std::string& value) { return value.substr(0, value.find('\0')); });
        }
    }
    const auto* const end_of_options =
        std::find_if(argv, argv + argc, [](std::string_view argument) { return argument == "--"; });
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {  // CLI11 takes the last first
        if (argv + i < end_of_options && has_empty_value(argv[i])) {
            arguments.emplace_back();
            arguments.emplace_back(argv[i], std::strlen(argv[i]) - 1);
            continue;
        }
        std::string& argument = arguments.emplace_back(argv[i]);
        if (argument.starts_with('[') && argument.ends_with(']')) argument += '\0';
    }
    program.parse(std::move(arguments));
}

std::string no_such_command(const CLI::App& program, const std::string& name) {
    std::vector<std::string_view> known;
    for (const CLI::App* command : commands_of(program)) known.emplace_back(command->get_name());
    return no_such("command", name, nearest_word(name, known), "");
}

/// Reports what is wrong with the arguments.
int refuse(const CLI::App& program, const CLI::ParseError& error, int argc, char** argv) {
    const bool names_none = argc > 1 && argv[1][0] != '-' && program.get_subcommands().empty();
    report((names_none ? no_such_command(program, argv[1]) : error.what()) +
           std::string(" (lmrtext --help says more)"));
    return exit_trouble;
}

int run(int argc, char** argv) {
    CLI::App program{"Styled text of crystal-structure entries: converts, shows and searches it"};
    if (argc > 0) program.name(argv[0]);
    program.set_version_flag("--version", "lmrtext " LMRTEXT_VERSION);
    program.require_subcommand(1);
    Choices choices;
    const Commands commands = all_commands();
    for (const auto& command : commands) command->add_to(program);
    add_options(commands, std::span(argv, static_cast<std::size_t>(argc)), choices);
    try {
        parse_as_they_are(program, argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return show_help(program, error);
        return refuse(program, error, argc, argv);
    }
    for (const auto& command : commands) {
        if (command->is_chosen())
            return guarded(command->trouble(), [&] { return command->run(); });
    }
    return exit_trouble;
}

}  // namespace

int main(int argc, char** argv) {
    occupy_standard_descriptors();
    std::signal(SIGXFSZ, SIG_IGN);  // a file that grows too large is an error to report
    return guarded(exit_failure, [&] { return run(argc, argv); });
}

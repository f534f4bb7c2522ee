#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <span>
#include <system_error>

#include "app/Diagnostics.h"
#include "app/convert.h"
#include "app/show.h"

namespace {

constexpr int exit_failure = 1;
constexpr int exit_usage = 2;
constexpr unsigned int longest_line = 4294967294;

/// A table of named rows as a help text.
template <class Row>
std::string row_help(const std::string& purpose, std::span<const Row> rows) {
    std::string help = purpose;
    const char* separator = ": ";
    for (const Row& row : rows) {
        help += separator + std::string(row.name) + " (" + row.help + ")";
        separator = ", ";
    }
    return help;
}

/// Adds an option that takes the name of a row.
template <class Row>
CLI::Option* add_row_option(CLI::App* command, const char* flag, const Row*& chosen,
                            std::span<const Row> rows, const std::string& purpose) {
    const auto choose = [&chosen, rows](const std::string& name) {
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&](const Row& candidate) { return candidate.name == name; });
        if (row == rows.end()) {
            std::string expected = "no such kind: '" + name + "'; expected one of";
            for (const Row& known : rows) expected += std::string(" ") + known.name;
            throw CLI::ValidationError(expected);
        }
        chosen = &*row;
    };
    return command->add_option_function<std::string>(flag, choose, row_help(purpose, rows))
        ->type_name("KIND");
}

void add_convert(CLI::App& program, ConvertOptions& options) {
    CLI::App* command = program.add_subcommand(
        "convert", "Converts texts, one a line, from one mark-up to another");
    command->footer(
        "A text that fails is reported as FILE:LINE and leaves an empty line; the others go on "
        "and\n"
        "the exit status is 1. Example:\n"
        "  printf '%s\\n' 'alpha-D-gluco!2$' | lmrtext convert --from tevo-name --to html5");
    add_row_option(command, "--from", options.from, sources(), "What the texts are")->required();
    add_row_option(command, "--to", options.to, targets(), "What to write")->required();
    command
        ->add_option("--line-length", options.line_length,
                     "Break lines after that many characters; 0: do not break")
        ->check(CLI::Range(0U, longest_line));
    command->add_flag_callback(
        "-0,--null", [&options] { options.separator = '\0'; },
        "NUL instead of line feed ends each text, read and written");
    command->add_option("FILE", options.files, "Files to read; none or -: standard input");
}

void add_show(CLI::App& program, ShowOptions& options) {
    CLI::App* command =
        program.add_subcommand("show", "Shows the names and titles of CIF files, styled");
    add_row_option(command, "--to", options.to, targets(),
                   "What to print; tevo unless a page is written");
    command->add_option("-o,--output", options.page, "Write an HTML5 page to this file")
        ->type_name("PAGE.html");
    command->add_option("FILE", options.files, "CIF files; -: standard input")->required();
}

const Target* find_target(const std::string& name) {
    for (const Target& target : targets()) {
        if (target.name == name) return &target;
    }
    return nullptr;
}

int run(int argc, char** argv) {
    CLI::App program{"Styled text of crystal-structure entries: converts and shows its mark-up"};
    program.set_version_flag("--version", "lmrtext " LMRTEXT_VERSION);
    program.require_subcommand(1);
    ConvertOptions convert_options;
    ShowOptions show_options;
    add_convert(program, convert_options);
    add_show(program, show_options);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return program.exit(error);
        report(std::string(error.what()) + " (lmrtext --help says more)");
        return exit_usage;
    }
    if (program.got_subcommand("convert")) {
        if (convert_options.files.empty()) convert_options.files.emplace_back("-");
        return convert(convert_options);
    }
    const bool page = !show_options.page.empty();
    if (!show_options.to) show_options.to = find_target(page ? "html5" : "tevo");
    if (page && show_options.to != find_target("html5")) {
        report("a page is written as html5, not as " + std::string(show_options.to->name));
        return exit_usage;
    }
    return show(show_options);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::system_error& error) {
        // A reader that has seen enough is no failure worth a word.
        if (error.code().value() != EPIPE) report(error.what());
    } catch (const std::exception& error) {
        report(error.what());
    }
    return exit_failure;
}

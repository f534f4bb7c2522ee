#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <functional>
#include <span>
#include <system_error>

#include "app/Diagnostics.h"
#include "app/convert.h"
#include "app/search.h"
#include "app/show.h"

namespace {

constexpr int exit_failure = 1;
constexpr int exit_no_match = 1;
constexpr int exit_trouble = 2;  // wrong usage, and any failure of a search, as grep has it
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

/// The row of that name, or null.
template <class Row>
const Row* row_named(std::span<const Row> rows, const std::string& name) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const Row& candidate) { return candidate.name == name; });
    return row == rows.end() ? nullptr : &*row;
}

/// Adds an option that takes the name of a row.
template <class Row>
CLI::Option* add_row_option(CLI::App* command, const char* flag, const Row*& chosen,
                            std::span<const Row> rows, const std::string& purpose) {
    const auto choose = [&chosen, rows](const std::string& name) {
        chosen = row_named(rows, name);
        if (chosen) return;
        std::string expected = "no such kind: '" + name + "'; expected one of";
        for (const Row& known : rows) expected += std::string(" ") + known.name;
        throw CLI::ValidationError(expected);
    };
    return command->add_option_function<std::string>(flag, choose, row_help(purpose, rows))
        ->type_name("KIND");
}

void add_batch_options(CLI::App* command, TextBatch& batch) {
    command->add_flag_callback(
        "-0,--null", [&batch] { batch.separator = '\0'; },
        "NUL instead of line feed ends each text, read and written");
    command->add_option("FILE", batch.files, "Files to read; none or -: standard input");
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
    add_batch_options(command, options.batch);
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

void add_search(CLI::App& program, SearchOptions& options) {
    options.from = row_named(sources(), "plain");
    options.to = row_named(search_outputs(), "html5");
    CLI::App* command = program.add_subcommand(
        "search", "Searches texts, one a line, and highlights what matches a term");
    command->footer(
        "What matches is bold, and green4 when the whole text matched in the search's own sense,\n"
        "otherwise blue. The exit status is 0 when something matched, 1 when nothing did and 2 on\n"
        "trouble. A text that fails is reported as FILE:LINE; the others go on. Example:\n"
        "  lmrtext search --how numeric --term 1.54 --tolerance 0.01 --to slices lengths.txt");
    add_row_option(command, "--how", options.how, search_kinds(), "What matches")->required();
    command->add_option("--term", options.term, "What to search for")->required();
    command
        ->add_option("--tolerance", options.settings.tolerance,
                     "Numeric: how far numbers may differ; 0 unless given, whole numbers with "
                     "1e-7 for rounding")
        ->check([](const std::string& tolerance) {
            if (is_tolerance(tolerance)) return std::string();
            return "'" + tolerance + "' is no tolerance; expected a number of at least 0";
        });
    command->add_option("--min-length", options.settings.min_match_length,
                        "Substring: the shortest run that matches, in characters; 3 unless given");
    add_row_option(command, "--from", options.from, sources(),
                   "What the texts are, plain unless given");
    add_row_option(command, "--to", options.to, search_outputs(),
                   "What to write, html5 unless given");
    command->add_flag("--matching", options.only_matching, "Write only the texts that match");
    add_batch_options(command, options.batch);
}

/// Runs a command; `trouble` is the exit status when it cannot go on.
int guarded(int trouble, const std::function<int()>& command) {
    try {
        return command();
    } catch (const std::system_error& error) {
        // A reader that has seen enough is no failure worth a word.
        if (error.code().value() != EPIPE) report(error.what());
    } catch (const std::exception& error) {
        report(error.what());
    }
    return trouble;
}

int run_show(ShowOptions& options) {
    const bool page = !options.page.empty();
    if (!options.to) options.to = row_named(targets(), page ? "html5" : "tevo");
    if (page && options.to != row_named(targets(), "html5")) {
        report("a page is written as html5, not as " + std::string(options.to->name));
        return exit_trouble;
    }
    return show(options) ? 0 : exit_failure;
}

int run_search(const SearchOptions& options) {
    const SearchOutcome outcome = search(options);
    if (!outcome.good) return exit_trouble;
    return outcome.matched ? 0 : exit_no_match;
}

int run(int argc, char** argv) {
    CLI::App program{"Styled text of crystal-structure entries: converts, shows and searches it"};
    program.set_version_flag("--version", "lmrtext " LMRTEXT_VERSION);
    program.require_subcommand(1);
    ConvertOptions convert_options;
    ShowOptions show_options;
    SearchOptions search_options;
    add_convert(program, convert_options);
    add_show(program, show_options);
    add_search(program, search_options);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return program.exit(error);
        report(std::string(error.what()) + " (lmrtext --help says more)");
        return exit_trouble;
    }
    if (program.got_subcommand("search")) {
        return guarded(exit_trouble, [&] { return run_search(search_options); });
    }
    return guarded(exit_failure, [&] {
        if (program.got_subcommand("show")) return run_show(show_options);
        return convert(convert_options) ? 0 : exit_failure;
    });
}

}  // namespace

int main(int argc, char** argv) {
    return guarded(exit_failure, [&] { return run(argc, argv); });
}

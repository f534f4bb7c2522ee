#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <functional>
#include <span>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "app/Diagnostics.h"
#include "app/Field.h"
#include "app/TextOutput.h"
#include "app/compare.h"
#include "app/convert.h"
#include "app/default_target.h"
#include "app/interface_texts.h"
#include "app/row_named.h"
#include "app/search.h"
#include "app/show.h"

namespace {

constexpr int exit_failure = 1;
constexpr int exit_no_match = 1;
constexpr int exit_difference = 1;
constexpr int exit_trouble = 2;  // wrong usage, and failures of searches, as with grep and diff
constexpr unsigned int longest_line = 4294967294;
constexpr unsigned int most_jobs = 1024;

template <class Row>
std::string help_of(const Row& row) {
    return row.help;
}

std::string help_of(const RichTextTarget& target) {
    return std::string(target.help) + " (." + target.ending + ')';
}

std::string help_of(const Output& output) {
    return output.target ? help_of(*output.target) : output.help;
}

/// The options that take the name of a row, for what is told of the program elsewhere.
Choices& choices() {
    static Choices noted;
    return noted;
}

/// The purpose of an option, and a line for each of its values.
std::string help_text(const ChoiceOption& option) {
    std::size_t width = 0;
    for (const Choice& value : option.values) width = std::max(width, value.name.size());
    std::string help = option.purpose;
    for (const Choice& value : option.values) {
        const std::string blanks(width - value.name.size() + 2, ' ');
        help.append("\n  ").append(value.name).append(blanks).append(value.help);
    }
    return help;
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
    ChoiceOption noted{purpose, {}};
    for (const Row& row : rows) noted.values.push_back({row.name, help_of(row)});
    CLI::Option* const option =
        command->add_option_function<std::string>(flag, choose, help_text(noted))
            ->type_name("KIND");
    choices()[option] = std::move(noted);
    return option;
}

void add_batch_options(CLI::App* command, TextBatch& batch) {
    command->add_flag_callback(
        "-0,--null", [&batch] { batch.separator = '\0'; },
        "NUL instead of line feed ends each text, read and written");
    command
        ->add_option("-j,--jobs", batch.jobs,
                     "Work in that many threads; the order of the texts stays")
        ->check(CLI::Range(1U, most_jobs));
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
    add_row_option(command, "--to", options.to, rich_text_targets(),
                   "What to write; on a terminal ansi unless given");
    command
        ->add_option("--line-length", options.line_length,
                     "Break lines after that many characters; 0: do not break")
        ->check(CLI::Range(0U, longest_line));
    add_batch_options(command, options.batch);
}

/// The views of the catalogue.
struct View {
    const char* name;
    const char* help;
    void (*list)(std::vector<LMRFieldNames::TextID>& out);
};

constexpr View view_rows[] = {
    {"default", "the fields that matter most", LMRFieldNames::default_fields},
    {"external", "what the public sees", LMRFieldNames::external_fields},
    {"internal", "all fields", LMRFieldNames::internal_fields},
};

std::span<const View> views() { return view_rows; }

LMRFieldNames::TextID field_named(const std::string& label) {
    LMRFieldNames::TextID id{};
    if (LMRFieldNames::find_id(label.c_str(), id)) return id;
    throw CLI::ValidationError("no such field: '" + label +
                               "'; lmrtext fields --view internal lists them");
}

/// The labels before each comma. One label holds a comma itself: where a part is not a label, the
/// next belongs to it.
std::vector<LMRFieldNames::TextID> fields_named(const std::string& labels) {
    std::vector<LMRFieldNames::TextID> fields;
    std::size_t start = 0;
    while (start <= labels.size()) {
        std::size_t end = std::min(labels.find(',', start), labels.size());
        LMRFieldNames::TextID id{};
        if (!LMRFieldNames::find_id(labels.substr(start, end - start).c_str(), id)) {
            end = std::min(labels.find(',', std::min(end + 1, labels.size())), labels.size());
        }
        fields.push_back(field_named(labels.substr(start, end - start)));
        start = end + 1;
    }
    return fields;
}

struct FieldsOptions {
    const View* view = nullptr;
};

void add_fields(CLI::App& program, FieldsOptions& options) {
    CLI::App* command =
        program.add_subcommand("fields", "Lists the labels and groups of an entry's fields");
    options.view = row_named(views(), "internal");
    add_row_option(command, "--view", options.view, views(), "Which fields; internal unless given");
}

/// Adds the options that choose fields; the fields of the view stand unless others are named.
void add_field_options(CLI::App* command, const View*& view,
                       std::vector<LMRFieldNames::TextID>& fields) {
    view = row_named(views(), "default");
    add_row_option(command, "--view", view, views(), "Which fields; default unless given");
    command
        ->add_option_function<std::string>(
            "--fields", [&fields](const std::string& labels) { fields = fields_named(labels); },
            "Only these fields: 'Cell Lengths,Author(s)'")
        ->type_name("LABELS");
}

struct ShowArguments {
    const View* view = nullptr;
    ShowOptions options;
};

void add_show(CLI::App& program, ShowArguments& arguments) {
    CLI::App* command =
        program.add_subcommand("show", "Shows the fields of entries in CIF files, styled");
    ShowOptions& options = arguments.options;
    add_field_options(command, arguments.view, options.fields);
    command->add_option("--find", options.term,
                        "Highlight this in every field, compared as suits the field");
    add_row_option(command, "--to", options.to, show_outputs(),
                   "What to write; unless given, as the ending of the file says, ansi on a "
                   "terminal and tevo elsewhere");
    command
        ->add_option(
            "-o,--output", options.path,
            "Write to this file, -: standard output; html5, also for unknown endings, is a page")
        ->check([](const std::string& path) {
            return path.empty() ? "expected the name of a file" : std::string();
        })
        ->type_name("FILE");
    command->add_option("FILE", options.files, "CIF files; -: standard input")->required();
}

void add_tolerance_option(CLI::App* command, SearchSettings& settings) {
    command
        ->add_option(
            "--tolerance", settings.tolerance,
            "How far numbers may differ, 0 unless given; a whole number allows 1e-7 more, for "
            "rounding")
        ->check([](const std::string& tolerance) {
            if (is_tolerance(tolerance)) return std::string();
            return "'" + tolerance + "' is not a tolerance; expected a number of at least 0";
        });
}

struct CompareArguments {
    const View* view = nullptr;
    CompareOptions options;
};

void add_compare(CLI::App& program, CompareArguments& arguments) {
    CLI::App* command =
        program.add_subcommand("compare", "Compares the entries of two CIF files, field by field");
    command->footer(
        "Lines begin with = where both sides are the same, with < and > where they differ; html5 "
        "is "
        "a page\nwith two columns. The exit status is 0 when all is the same, 1 when something "
        "differs and 2 on trouble.");
    CompareOptions& options = arguments.options;
    add_field_options(command, arguments.view, options.fields);
    add_tolerance_option(command, options.settings);
    add_row_option(command, "--to", options.to, rich_text_targets(),
                   "What to write; unless given, ansi on a terminal and tevo elsewhere");
    command->add_option("A.cif", options.left, "One side")->required();
    command->add_option("B.cif", options.right, "The other side")->required();
}

void add_search(CLI::App& program, SearchOptions& options) {
    options.from = row_named(sources(), "plain");
    CLI::App* command = program.add_subcommand(
        "search", "Searches texts, one a line, and highlights what matches a term");
    command->footer(
        "What matches is bold, and green4 when the whole text matched in the search's own sense,\n"
        "otherwise blue. The exit status is 0 when something matched, 1 when nothing did and 2 on\n"
        "trouble. A text that fails is reported as FILE:LINE; the others go on. Example:\n"
        "  lmrtext search --how numeric --term 1.54 --tolerance 0.01 --to slices lengths.txt");
    add_row_option(command, "--how", options.how, search_kinds(),
                   "What is marked, and when a text matches as a whole");
    command
        ->add_option_function<std::string>(
            "--field",
            [&options](const std::string& label) {
                const Field field = field_of(field_named(label));
                options.from = field.source;
                options.how = field.search;
            },
            "Instead of --how and --from: as suits this field of an entry")
        ->type_name("LABEL");
    command->add_option("--term", options.term, "What to search for")->required();
    add_tolerance_option(command, options.settings);
    command
        ->add_option(
            "--min-length", options.settings.min_match_length,
            "The shortest run that a substring search marks, in characters; 3 unless given")
        ->check(CLI::Range(1U, longest_line));
    add_row_option(command, "--from", options.from, sources(),
                   "What the texts are; plain unless given");
    add_row_option(command, "--to", options.to, search_outputs(),
                   "What to write; unless given, ansi on a terminal and html5 elsewhere");
    command->add_flag("--matching", options.only_matching, "Write only the texts that match");
    add_batch_options(command, options.batch);
}

/// Runs a command; `trouble` is the exit status when it cannot go on.
int guarded(int trouble, const std::function<int()>& command) {
    try {
        return command();
    } catch (const std::system_error& error) {
        // That the reader has seen enough and gone is not reported.
        if (error.code().value() != EPIPE) report(error.what());
    } catch (const std::exception& error) {
        report(error.what());
    }
    return trouble;
}

int run_convert(ConvertOptions& options) {
    if (!options.to) options.to = row_named(rich_text_targets(), default_target(""));
    if (!options.to) {
        report(
            "convert needs --to where it does not write to a terminal (lmrtext convert --help "
            "says more)");
        return exit_trouble;
    }
    return convert(options) ? 0 : exit_failure;
}

/// Adds the commands that tell of the program itself.
void add_texts(CLI::App& program) {
    program.add_subcommand("targets", "Lists what can be written: name, ending of files, content");
    program.add_subcommand("manual", "Prints the manual page")
        ->add_flag("--markdown")
        ->description("In Markdown");
    CLI::App* completion =
        program.add_subcommand("completion", "Prints a script that completes commands in a shell");
    CLI::Option* const shell = completion->add_option("SHELL", "bash, zsh or fish")
                                   ->required()
                                   ->check(CLI::IsMember({"bash", "zsh", "fish"}));
    choices()[shell] = {shell->get_description(), {{"bash", ""}, {"zsh", ""}, {"fish", ""}}};
}

int run_text(const CLI::App& program) {
    std::string text;
    if (program.got_subcommand("manual")) {
        text = program.get_subcommand("manual")->count("--markdown") > 0
                   ? manual_in_markdown(program, choices())
                   : manual_page(program, choices(), LMRTEXT_VERSION);
    } else {
        const auto shell =
            program.get_subcommand("completion")->get_option("SHELL")->as<std::string>();
        const auto complete = shell == "bash"  ? bash_completion
                              : shell == "zsh" ? zsh_completion
                                               : fish_completion;
        text = complete(program, choices());
    }
    TextOutput output;
    output.write(text);
    output.close();
    return 0;
}

int run_targets() {
    TextOutput output;
    for (const RichTextTarget& target : rich_text_targets()) {
        output.write(std::string(target.name) + "\t." + target.ending + '\t' + target.help + '\n');
    }
    output.close();
    return 0;
}

int run_show(ShowArguments& arguments) {
    ShowOptions& options = arguments.options;
    if (options.path == "-") options.path.clear();
    if (!options.to) {
        const char* const other = options.path.ends_with(".json") ? "json" : "html5";
        options.to =
            row_named(show_outputs(), options.path.empty() ? default_target("tevo")
                                                           : target_of_path(options.path, other));
    }
    if (options.fields.empty()) arguments.view->list(options.fields);
    return show(options) ? 0 : exit_failure;
}

int run_fields(const FieldsOptions& options) {
    std::vector<LMRFieldNames::TextID> fields;
    options.view->list(fields);
    TextOutput output;
    for (const LMRFieldNames::TextID id : fields) {
        output.write(std::string(LMRFieldNames::text(id)) + '\t' + group_of(id) + '\n');
    }
    output.close();
    return 0;
}

int run_compare(CompareArguments& arguments) {
    CompareOptions& options = arguments.options;
    if (!options.to) options.to = row_named(rich_text_targets(), default_target("tevo"));
    if (options.fields.empty()) arguments.view->list(options.fields);
    const CompareOutcome outcome = compare(options);
    if (!outcome.good) return exit_trouble;
    return outcome.same ? 0 : exit_difference;
}

int run_search(SearchOptions& options) {
    if (!options.to) options.to = row_named(search_outputs(), default_target("html5"));
    if (!options.how) {
        report("search needs --how or --field (lmrtext search --help says more)");
        return exit_trouble;
    }
    if (!options.how->takes(options.term)) {
        report("'" + options.term + "' is not a term for the search " + options.how->name +
               " (lmrtext search --help says more)");
        return exit_trouble;
    }
    const SearchOutcome outcome = search(options);
    if (!outcome.good) return exit_trouble;
    return outcome.matched ? 0 : exit_no_match;
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

/// CLI11 would make a list of an argument like "[x,y]". While it parses them, such arguments end
/// with a NUL, which none has of itself.
void parse_as_they_are(CLI::App& program, int argc, char** argv) {
    for (CLI::App* command : program.get_subcommands({})) {
        for (CLI::Option* option : command->get_options()) {
            option->transform(
                [](const std::string& value) { return value.substr(0, value.find('\0')); });
        }
    }
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {  // CLI11 takes the last first
        std::string& argument = arguments.emplace_back(argv[i]);
        if (argument.starts_with('[') && argument.ends_with(']')) argument += '\0';
    }
    program.parse(std::move(arguments));
}

int run(int argc, char** argv) {
    CLI::App program{"Styled text of crystal-structure entries: converts, shows and searches it"};
    if (argc > 0) program.name(argv[0]);
    program.set_version_flag("--version", "lmrtext " LMRTEXT_VERSION);
    program.require_subcommand(1);
    ConvertOptions convert_options;
    ShowArguments show_arguments;
    FieldsOptions fields_options;
    SearchOptions search_options;
    CompareArguments compare_arguments;
    add_convert(program, convert_options);
    add_show(program, show_arguments);
    add_fields(program, fields_options);
    add_search(program, search_options);
    add_compare(program, compare_arguments);
    add_texts(program);
    try {
        parse_as_they_are(program, argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return show_help(program, error);
        if (argc > 1 && argv[1][0] != '-' && program.get_subcommands().empty()) {
            report("no such command: '" + std::string(argv[1]) + "' (lmrtext --help says more)");
            return exit_trouble;
        }
        report(std::string(error.what()) + " (lmrtext --help says more)");
        return exit_trouble;
    }
    if (program.got_subcommand("search")) {
        return guarded(exit_trouble, [&] { return run_search(search_options); });
    }
    if (program.got_subcommand("compare")) {
        return guarded(exit_trouble, [&] { return run_compare(compare_arguments); });
    }
    return guarded(exit_failure, [&] {
        if (program.got_subcommand("show")) return run_show(show_arguments);
        if (program.got_subcommand("fields")) return run_fields(fields_options);
        if (program.got_subcommand("targets")) return run_targets();
        if (program.got_subcommand("manual") || program.got_subcommand("completion")) {
            return run_text(program);
        }
        return run_convert(convert_options);
    });
}

}  // namespace

int main(int argc, char** argv) {
    occupy_standard_descriptors();
    std::signal(SIGXFSZ, SIG_IGN);  // a file that grows too large is an error to report
    return guarded(exit_failure, [&] { return run(argc, argv); });
}

#include "cli/options.h"

#include <algorithm>

namespace {

constexpr unsigned int most_jobs = 1024;

constexpr UnitRow unit_rows[] = {
    {"bytes", "bytes of UTF-8", DisplayedText::bytes},
    {"characters", "characters of Unicode", DisplayedText::characters},
    {"utf16", "units of UTF-16, as in JavaScript and Qt", DisplayedText::utf16},
};

void add_list_option(CLI::App& command, Places& places) {
    command
        .add_option("--files-from", places.list,
                    "Read the files, too, that this one names, one a line; -: standard input")
        ->type_name("LIST");
}

}  // namespace

std::string help_of(const RichTextTarget& target) {
    return std::string(target.help) + " (." + target.ending + ')';
}

std::string help_of(const Output& output) {
    return output.target ? help_of(*output.target) : output.help;
}

std::string no_such(const std::string& thing, const std::string& name, std::string_view nearest,
                    const std::string& help) {
    std::string complaint = "no such " + thing + ": '" + name + "'";
    if (nearest.empty()) return complaint + (help.empty() ? "" : "; " + help);
    return complaint.append("; did you mean '").append(nearest).append("'?");
}

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

void add_jobs_option(CLI::App& command, unsigned int& jobs, const std::string& what) {
    command
        .add_option("-j,--jobs", jobs,
                    "Work in up to that many threads; the order of the " + what + " stays")
        ->check(CLI::Range(1U, most_jobs));
}

void add_progress_option(CLI::App& command, bool& progress) {
    command.add_flag_callback(
        "--no-progress", [&progress] { progress = false; },
        "Do not tell on a terminal how far long work is");
}

void add_recursive_option(CLI::App& command, bool& recursive) {
    command.add_flag("-r,--recursive", recursive, "Of folders read the folders in them too");
}

void add_place_options(CLI::App& command, Places& places) {
    add_recursive_option(command, places.recursive);
    add_list_option(command, places);
    command.add_flag_callback(
        "-0,--null", [&places] { places.separator = '\0'; },
        "NUL instead of line feed ends each name of --files-from");
    command.add_option("FILE", places.paths,
                       "CIF files, gzip files of such, and folders with them; -: standard input");
}

void add_batch_options(CLI::App& command, TextBatch& batch) {
    command.add_flag_callback(
        "-0,--null", [&batch] { batch.separator = batch.places.separator = '\0'; },
        "NUL instead of line feed ends each text, read and written, and each name of a list");
    add_jobs_option(command, batch.jobs, "texts");
    add_progress_option(command, batch.shows_progress);
    add_list_option(command, batch.places);
    command.add_option("FILE", batch.places.paths,
                       "Files to read, which may be gzip files; none or -: standard input");
}

std::vector<Field> ChosenFields::list() const { return named.empty() ? view->fields() : named; }

void add_field_options(CLI::App& command, Choices& choices, ChosenFields& fields,
                       const char* view) {
    fields.view = row_named(views(), view);
    add_row_option(command, choices, "--view", fields.view, views(),
                   std::string("Which fields; ") + view + " unless given");
    command
        .add_option_function<std::string>(
            "--fields,--field",
            [&fields](const std::string& labels) {
                fields.named = known_fields(fields_named, labels);
            },
            "Only these fields: 'Cell Lengths,Author(s)'")
        ->type_name("LABELS");
}

void add_tolerance_option(CLI::App& command, SearchSettings& settings) {
    command
        .add_option(
            "--tolerance", settings.tolerance,
            "How far numbers may differ, 0 unless given; a whole number allows 1e-7 more, for "
            "rounding")
        ->check([](const std::string& tolerance) {
            if (is_tolerance(tolerance)) return std::string();
            return "'" + tolerance + "' is not a tolerance; expected a number of at least 0";
        });
}

void add_umlauts_option(CLI::App& command, const std::function<Folding&()>& fold) {
    command.add_flag_callback(
        "--fold-umlauts", [fold] { fold().umlauts = true; },
        "Fold, and take ä, ö and ü for ae, oe and ue, not for a, o and u");
}

std::optional<TextPositions> ChosenPositions::chosen() const {
    if (!unit && !of_displayed) return std::nullopt;
    return TextPositions{unit ? unit->unit : DisplayedText::bytes, of_displayed};
}

void add_position_options(CLI::App& command, Choices& choices, ChosenPositions& positions) {
    add_row_option(command, choices, "--units", positions.unit, std::span<const UnitRow>(unit_rows),
                   "In which units positions are told; bytes unless given");
    command.add_flag("--displayed", positions.of_displayed)
        ->description("Positions of the text as it is shown, not of the text with its codes");
}

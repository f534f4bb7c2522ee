#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "cli/Choices.h"
#include "cli/Places.h"
#include "cli/TextBatch.h"
#include "comparison/folding.h"
#include "output/Output.h"
#include "output/TextPositions.h"
#include "tasks/SearchKind.h"
#include "tasks/UnknownField.h"
#include "tasks/View.h"
#include "tasks/nearest_word.h"
#include "tasks/row_named.h"

// The options that several commands have.

constexpr unsigned int longest_line = 4294967294;  // in characters

template <class Row>
std::string help_of(const Row& row) {
    return row.help;
}
std::string help_of(const RichTextTarget& target);
std::string help_of(const Output& output);

/// A complaint about the name of a thing: which one may be meant, or else what may help.
std::string no_such(const std::string& thing, const std::string& name, std::string_view nearest,
                    const std::string& help);

/// The purpose of an option, and a line for each of its values.
std::string help_text(const ChoiceOption& option);

/// Adds an option that takes the name of a row.
template <class Row>
CLI::Option* add_row_option(CLI::App& command, Choices& choices, const char* flag,
                            const Row*& chosen, std::span<const Row> rows,
                            const std::string& purpose) {
    const auto choose = [&chosen, rows](const std::string& name) {
        chosen = row_named(rows, name);
        if (chosen) return;
        std::vector<std::string_view> known;
        std::string expected = "expected one of";
        for (const Row& row : rows) expected.append(" ").append(known.emplace_back(row.name));
        throw CLI::ValidationError(no_such("kind", name, nearest_word(name, known), expected));
    };
    ChoiceOption noted{purpose, {}};
    for (const Row& row : rows) noted.values.push_back({row.name, help_of(row)});
    CLI::Option* const option =
        command.add_option_function<std::string>(flag, choose, help_text(noted))->type_name("KIND");
    choices[option] = std::move(noted);
    return option;
}

/// Adds the option for the number of threads that work on `what`.
void add_jobs_option(CLI::App& command, unsigned int& jobs, const std::string& what);

/// Adds the option that shows no progress, and clears `progress`.
void add_progress_option(CLI::App& command, bool& progress);

/// Adds the option to read folders with the folders in them.
void add_recursive_option(CLI::App& command, bool& recursive);

/// Adds the options of commands that work on CIF files.
void add_place_options(CLI::App& command, Places& places);

/// Adds the options of commands that work on texts.
void add_batch_options(CLI::App& command, TextBatch& batch);

/// The fields that a command is about.
struct ChosenFields {
    const View* view = nullptr;
    std::vector<Field> named;

    /// Those that were named, or else those of the view.
    std::vector<Field> list() const;
};

/// Adds the options that choose fields; unless given, those of that view.
void add_field_options(CLI::App& command, Choices& choices, ChosenFields& fields,
                       const char* view = "default");

void add_tolerance_option(CLI::App& command, SearchSettings& settings);

/// Adds the option that folds umlauts otherwise; `fold` is asked for the folding to change.
void add_umlauts_option(CLI::App& command, const std::function<Folding&()>& fold);

/// What `find` gives, or a complaint where no field has that label.
template <class Find>
auto known_fields(Find find, const std::string& label) {
    try {
        return find(label);
    } catch (const UnknownField& unknown) {
        throw CLI::ValidationError(no_such("field", unknown.what(), unknown.nearest(),
                                           "lmrtext fields --view internal lists them"));
    }
}

/// How positions are told, where that is asked for.
struct UnitRow {
    const char* name;
    const char* help;
    DisplayedText::Unit unit;
};
struct ChosenPositions {
    const UnitRow* unit = nullptr;
    bool of_displayed = false;

    std::optional<TextPositions> chosen() const;
};

void add_position_options(CLI::App& command, Choices& choices, ChosenPositions& positions);

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/EntryBatch.h"
#include "cli/Progress.h"
#include "cli/TextOutput.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "cli/terms.h"
#include "output/layouts.h"
#include "tasks/EntryFinder.h"
#include "tasks/TermKind.h"

namespace {

constexpr int exit_no_match = 1;

class FindCommand : public Command {
public:
    int run() override {
        if (!places_.are_named()) {
            report("find needs a FILE or --files-from (lmrtext find --help says more)");
            return exit_trouble;
        }
        if (!to_) to_ = output_of(show_outputs(), RichTextTarget::Use::plain_terminal);
        others_.insert(others_.begin(), term_);
        fields_found_ = fields_.list();
        EntryFinder::Terms terms = terms_of(others_, settings_);
        for (const auto& term : terms) add_missing(term->own_fields());
        finder_.emplace(fields_.list(), std::move(terms), settings_.folding);
        bool good = false;
        const bool matched = find(good);
        if (!good) return exit_trouble;
        return matched ? exit_success : exit_no_match;
    }
    int trouble() const override { return exit_trouble; }

private:
    enum class Form { entries, count, files };

    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand(
            "find", "Finds entries in CIF files by terms, and shows the fields that match");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        command.footer(
            "Below each field stands what was found in it as what. The exit status is 0 when some\n"
            "entry matched, 1 when none did and 2 on trouble. Example:\n"
            "  lmrtext find cisarova --and year:2001-2004 --and 'cell:22.7,22.7,13.5' -r cifs/");
        ChoiceOption kinds{
            "A word, a part of one or several words. A number, 11.141, also finds those that round "
            "to it; an element with its number, C22, is one of formulae, a space group, P-1, one "
            "of "
            "entries, and both are whole words elsewhere. Or a term of a kind:",
            {}};
        for (const TermKind& kind : term_kinds()) {
            kinds.values.push_back({std::string(kind.name) + ":" + kind.value, kind.help});
        }
        CLI::Option* const term = command.add_option("TERM", term_, help_text(kinds))->required();
        choices[term] = std::move(kinds);
        command.add_option("--and", others_, "Another term, which the entry must have too")
            ->allow_extra_args(false);
        add_field_options(command, choices, fields_, "internal");
        add_folding_options(command);
        command.add_flag("--whole", settings_.whole_words, "Only whole words match");
        CLI::Option* const count = command.add_flag_callback(
            "--count", [this] { form_ = Form::count; }, "Write only how many entries match");
        command
            .add_flag_callback(
                "--list", [this] { form_ = Form::files; },
                "Write only the names of the files with entries that match, one a line")
            ->excludes(count);
        add_row_option(command, choices, "--to", to_, show_outputs(),
                       "What to write; unless given, ansi on a terminal and unicode elsewhere");
        add_position_options(command, choices, positions_);
        add_jobs_option(command, jobs_, "entries");
        add_progress_option(command, progress_);
        add_place_options(command, places_);
    }

    void add_folding_options(CLI::App& command) {
        const auto fold = [this]() -> Folding& {
            const bool umlauts = settings_.folding.umlauts;
            settings_.folding = {};
            settings_.folding.umlauts = umlauts;
            return settings_.folding;
        };
        command.add_flag_callback(
            "--fold", [fold] { fold(); },
            "Take capitals, accents, dashes, primes, blanks, Greek letters or their names, raised "
            "and other forms of characters for the same, as is done unless --no-fold is given");
        command.add_flag_callback(
            "--no-fold",
            [this] {
                settings_.folding = {false, false, false, false, false, false, false, false};
            },
            "Take characters as they are");
        add_umlauts_option(command, fold);
    }

    /// Adds fields that some term looks into without being asked to.
    void add_missing(const std::vector<Field>& fields) {
        for (const Field& field : fields) {
            const bool is_there = std::any_of(
                fields_found_.begin(), fields_found_.end(),
                [&](const Field& other) { return std::string_view(other.label) == field.label; });
            if (!is_there) fields_found_.push_back(field);
        }
    }

    std::unique_ptr<EntryLayout> make_layout() const {
        return make_entry_layout(*to_, false, fields_found_, positions_.chosen());
    }

    /// Looks into entries of a file; for several threads at a time.
    ProcessedEntries found(const std::string& file, std::span<const CifEntry> entries) const {
        ProcessedEntries done;
        done.count = entries.size();
        const std::unique_ptr<EntryLayout> layout = make_layout();
        for (const CifEntry& entry : entries) {
            EntryFields fields;
            const bool matches = form_ == Form::entries
                                     ? !(fields = finder_->find(entry)).fields.empty()
                                     : finder_->is_in(entry);
            note_problems(file, entry, fields, matches, done.problems);
            if (!matches) continue;
            ++done.matched;
            if (form_ != Form::entries) continue;
            done.parts.push_back(
                layout->entry(file, std::string(entry.block.name()), fields.fields));
        }
        if (form_ == Form::files && done.matched > 0) done.parts.push_back({file + '\n'});
        return done;
    }

    /// Doubts matter where an entry is shown, errors everywhere.
    void note_problems(const std::string& file, const CifEntry& entry, EntryFields& fields,
                       bool matches, std::vector<Problem>& problems) const {
        for (const Problem& problem : entry.problems) {
            const bool is_shown = matches && form_ == Form::entries;
            if (is_shown || problem.level == Problem::Level::error) problems.push_back(problem);
        }
        for (Problem& problem : fields.problems) {
            problem.file = file;
            problems.push_back(std::move(problem));
        }
    }

    /// Looks into one entry after the other; returns whether one matched. `good` becomes whether
    /// nothing was reported.
    bool find(bool& good) const {
        EntryBatch batch(places_.cif_files(), jobs_,
                         [this](const std::string& file, std::span<const CifEntry> entries) {
                             return found(file, entries);
                         });
        TextOutput output;
        const std::unique_ptr<EntryLayout> layout = make_layout();
        Progress progress(progress_ && !output.is_terminal(), "entries", batch.places());
        const bool is_document = form_ == Form::entries;
        unsigned long count = 0, matched = 0;
        std::string written;  // the last name of a file
        if (is_document) output.write(layout->head("Crystal structures"));
        for (ProcessedEntries done; batch.next(done);) {
            count += done.count;
            progress.update(count, batch.places_read());
            matched += done.matched;
            for (LaidOutPart& part : done.parts) {
                // Of a file with many entries there are several results.
                if (form_ == Form::files && part.text == written) continue;
                if (form_ == Form::files) written = part.text;
                output.write(layout->add(std::move(part)));
            }
        }
        if (is_document) output.write(layout->foot());
        if (form_ == Form::count) output.write(std::to_string(matched) + '\n');
        output.close();
        good = batch.good();
        return matched > 0;
    }

    std::string term_;
    std::vector<std::string> others_;  // that the entry must have too
    TermSettings settings_;
    ChosenFields fields_;
    std::vector<Field> fields_found_;  // that may be shown
    std::optional<EntryFinder> finder_;
    Form form_ = Form::entries;
    const Output* to_ = nullptr;
    ChosenPositions positions_;  // in JSON
    unsigned int jobs_ = 1;
    bool progress_ = true;
    Places places_;
};

}  // namespace

std::unique_ptr<Command> make_find_command() { return std::make_unique<FindCommand>(); }

#include <optional>
#include <utility>
#include <vector>

#include "checks/CheckSummary.h"
#include "cli/CheckBatch.h"
#include "cli/Command.h"
#include "cli/Progress.h"
#include "cli/TextOutput.h"
#include "cli/options.h"
#include "cli/output_file.h"
#include "cli/report.h"
#include "output/CheckLayout.h"
#include "output/check_codes_page.h"
#include "output/check_summary.h"

namespace {

/// How grave findings are.
struct LevelRow {
    const char* name;
    const char* help;
    Problem::Level level;
};

constexpr LevelRow levels[] = {
    {"note", "what is worth knowing, too", Problem::Level::note},
    {"warning", "what may not be what was meant, and errors", Problem::Level::warning},
    {"error", "only what cannot be", Problem::Level::error},
};

class CheckCommand : public Command {
public:
    int run() override {
        if (lists_codes_) return list_codes();
        if (!places_.are_named()) {
            report("check needs a FILE or --files-from (lmrtext check --help says more)");
            return exit_trouble;
        }
        if (is_summary_ && std::string_view(to_->name) == "sarif") {
            report("--summary is written as text or json");
            return exit_trouble;
        }
        if (path_ == "-") path_.clear();
        std::vector<Place> places = places_.cif_files();
        const std::unique_ptr<TextOutput> output = begin_output(path_, places);
        return check(std::move(places), *output);
    }

    int trouble() const override { return exit_trouble; }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand(
            "check", "Tells what may be wrong with CIF files, where, and how to mend it");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        add_row_option(command, choices, "--to", to_, check_outputs(),
                       "What to write; text unless given");
        add_codes_option(command, "--only", only_, "Look for these alone: 'item-twice,not-utf8'");
        add_codes_option(command, "--ignore", ignored_, "Do not look for these");
        add_row_option(command, choices, "--level", level_, std::span<const LevelRow>(levels),
                       "How grave findings must be to be told; warning unless given, with "
                       "--only note");
        command.add_flag("--fix", repairs_,
                         "Do in the files the repairs of what --level tells that are safe, and "
                         "tell what is left");
        command.add_flag(
            "--backup", keeps_backups_,
            "With --fix keep each file that changes as it was, with ~ behind its name");
        command.add_flag("--summary", is_summary_,
                         "Only a table of what was found how often, as text or json; repairs are "
                         "counted among the first 1,000 of a code in a file, findings all");
        command.add_flag("--codes", lists_codes_, "List all that may be found, with its level");
        add_output_option(command, path_);
        add_jobs_option(command, jobs_, "files");
        add_progress_option(command, progress_);
        add_place_options(command, places_);
    }

    static void add_codes_option(CLI::App& command, const char* flag,
                                 std::vector<const CheckCode*>& codes, const char* purpose) {
        const auto add = [&codes](const std::string& name) {
            codes.push_back(check_code(name));
            if (codes.back()) return;
            std::vector<std::string_view> known;
            for (const CheckCode& code : check_codes()) known.emplace_back(code.code);
            throw CLI::ValidationError(no_such("code", name, nearest_word(name, known),
                                               "lmrtext check --codes lists them"));
        };
        command
            .add_option_function<std::vector<std::string>>(
                flag,
                [add](const std::vector<std::string>& names) {
                    for (const std::string& name : names) add(name);
                },
                purpose)
            ->delimiter(',')
            ->allow_extra_args(false)
            ->type_name("CODES");
    }

    int list_codes() const {
        TextOutput output;
        output.write(check_codes_table());
        output.close();
        return exit_success;
    }

    /// Checks one file after the other; returns the exit status.
    int check(std::vector<Place> places, TextOutput& output) const {
        CheckBatch batch(std::move(places), jobs_,
                         {WantedChecks(level(), only_, ignored_), repairs_, keeps_backups_});
        Progress progress(progress_ && !output.is_terminal(), "files", batch.size());
        const std::unique_ptr<CheckLayout> layout = to_->make();
        CheckSummary summary;
        unsigned long found = 0;
        bool good = true;
        if (!is_summary_) output.write(layout->head(LMRTEXT_VERSION));
        while (const std::optional<CheckedFile> file = batch.next()) {
            if (!file->trouble.empty()) report(file->trouble);
            good = good && file->trouble.empty() && file->is_cif;
            if (file->repairs > 0) report(file->path + ": " + repairs_in_words(file->repairs));
            summary.take(file->findings);
            for (const CheckFinding& finding : file->findings) {
                if (found++ > 0 && !is_summary_) output.write(layout->separator());
                if (!is_summary_) output.write(layout->finding(finding));
            }
            progress.update(found, static_cast<double>(batch.given()));
        }
        output.write(is_summary_ ? summary_text(summary) : layout->foot());
        output.close();
        if (!good) return exit_trouble;
        return found > 0 ? exit_failure : exit_success;
    }

    /// Codes that are named are told whatever their level.
    Problem::Level level() const {
        if (level_) return level_->level;
        return only_.empty() ? Problem::Level::warning : Problem::Level::note;
    }

    static std::string repairs_in_words(std::size_t count) {
        return std::to_string(count) + (count == 1 ? " repair" : " repairs");
    }

    std::string summary_text(const CheckSummary& summary) const {
        const bool is_json = std::string_view(to_->name) == "json";
        return is_json ? summary_as_json(summary) : summary_as_text(summary);
    }

    const CheckOutput* to_ = row_named(check_outputs(), "text");
    const LevelRow* level_ = nullptr;  // null: not given
    std::vector<const CheckCode*> only_, ignored_;
    bool repairs_ = false;
    bool keeps_backups_ = false;
    bool is_summary_ = false;
    bool lists_codes_ = false;
    std::string path_;  // of the file to write; empty: standard output
    unsigned int jobs_ = 1;
    bool progress_ = true;
    Places places_;
};

}  // namespace

std::unique_ptr<Command> make_check_command() { return std::make_unique<CheckCommand>(); }

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/EditBatch.h"
#include "cli/EditRequest.h"
#include "cli/EditWriter.h"
#include "cli/Progress.h"
#include "cli/TextOutput.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "output/unified_diff.h"

namespace {

constexpr int exit_unchanged = 1;

class SetCommand : public Command {
public:
    int run() override {
        if (!is_complete()) return exit_trouble;
        std::vector<Place> places =
            edits_path_.empty() ? named_files() : request_.read_edits(edits_path_);
        EditBatch batch(std::move(places), jobs_,
                        [&](std::size_t place, const EntryReader& entries) {
                            return request_.change_of(place, entries);
                        });
        return tells_only_ ? tell(batch) : write(batch);
    }
    int trouble() const override { return exit_trouble; }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand(
            "set", "Changes a field of entries in CIF files, and nothing else of these");
    }

    void add_options(CLI::App& command, Choices& choices) override;
    bool is_complete() const;
    std::vector<Place> named_files() const;
    int write(EditBatch& batch) const;
    int tell(EditBatch& batch) const;

    EditRequest request_;
    bool takes_away_ = false;
    std::string edits_path_;
    bool tells_only_ = false;
    bool keeps_backup_ = false;
    unsigned int jobs_ = 1;
    bool progress_ = true;
    Places places_;
};

void SetCommand::add_options(CLI::App& command, Choices& choices) {
    command.footer(
        "Of each file the bytes of the field's values become others, and no others do. A file is\n"
        "written whole or not at all, with its permissions and its owner; one of which something\n"
        "is refused, or that has changed since it was read, stays as it is. What --value tells is\n"
        "of kind unicode where the field has styles, else in the field's own form, as show has "
        "it.\n"
        "The exit status is 0 when something was changed, 1 when there was nothing to change and\n"
        "2 on trouble.\n"
        "Examples:\n"
        "  lmrtext set --field 'Compound Name' --value 'α-D-glucose' a.cif\n"
        "  lmrtext set --dry-run --field 'Author(s)' --replace Mueller --value Müller *.cif\n"
        "  lmrtext show --to json a.cif b.cif >edits.json; lmrtext set --edits edits.json");
    CLI::Option* const field = command.add_option_function<std::string>(
        "--field",
        [this](const std::string& label) { request_.field = known_fields(field_named, label); },
        "The field to change");
    field->type_name("LABEL");
    CLI::Option* const value = command.add_option("--value", request_.text,
                                                  "What the field shall say; --value=-1 where it "
                                                  "begins with -");
    value->type_name("TEXT");
    CLI::Option* const unset =
        command.add_flag("--unset", takes_away_, "Take away what the field says");
    CLI::Option* const old = command.add_option(
        "--replace", request_.old,
        "Put --value in the place of this wherever the field shows it or, with its codes, holds "
        "it; of all entries, those without it left as they are");
    old->type_name("OLD");
    CLI::Option* const from = add_row_option(command, choices, "--from", request_.from, sources(),
                                             "What kind of text --value is");
    CLI::Option* const entry = command.add_option(
        "--entry", request_.block, "The block of the entry, where there are several");
    entry->type_name("BLOCK");
    CLI::Option* const edits = command.add_option(
        "--edits", edits_path_,
        "Make the fields of entries say what this file says, as show --to json writes them; what "
        "it does not change stays; -: standard input");
    edits->type_name("FILE");
    unset->excludes(value, old, from);
    edits->excludes(field, value, unset, old, from, entry);
    command.add_flag("--dry-run", tells_only_,
                     "Change nothing, but write what would change as a unified diff for patch -p1");
    command.add_flag("--backup", keeps_backup_,
                     "Keep each file as it was beside it, with ~ behind its name");
    add_jobs_option(command, jobs_, "files");
    add_progress_option(command, progress_);
    add_place_options(command, places_);
}

/// Whether what is to be done has been told; what is missing is reported.
bool SetCommand::is_complete() const {
    const char* missing = nullptr;
    if (!edits_path_.empty()) {
        if (places_.are_named()) missing = "set --edits takes no FILE: the edits name theirs";
    } else if (!places_.are_named()) {
        missing = "set needs a FILE, --files-from or --edits (lmrtext set --help says more)";
    } else if (!request_.field || (!request_.text && !takes_away_)) {
        missing = "set needs --field, and --value or --unset (lmrtext set --help says more)";
    } else if (request_.old && request_.old->empty()) {
        missing = "--replace: expected a text";
    }
    if (missing) report(missing);
    return !missing;
}

/// Each once, by whatever names.
std::vector<Place> SetCommand::named_files() const {
    std::vector<Place> files;
    std::set<std::string> known;
    for (Place& place : places_.cif_files()) {
        if (!place.problem.empty() || known.insert(place_behind_links(place.path)).second) {
            files.push_back(std::move(place));
        }
    }
    return files;
}

/// Puts one file after the other in its place.
int SetCommand::write(EditBatch& batch) const {
    Progress progress(progress_, "files", batch.places());
    EditWriter writer(keeps_backup_);
    for (unsigned long count = 0; std::optional<EditBatch::Edited> edited = batch.next();) {
        writer.add(std::move(*edited));
        ++count;
        progress.update(count, static_cast<double>(count));
    }
    writer.finish();
    if (!writer.good()) return exit_trouble;
    return writer.any_written() ? exit_success : exit_unchanged;
}

/// Tells what would change.
int SetCommand::tell(EditBatch& batch) const {
    TextOutput output;
    const bool with_colors =
        target_of_terminal() == &rich_text_target_for(RichTextTarget::Use::terminal);
    Progress progress(progress_ && !output.is_terminal(), "files", batch.places());
    bool good = true, any_changed = false;
    for (unsigned long count = 0; const std::optional<EditBatch::Edited> edited = batch.next();) {
        good = report(edited->problems) && good;
        ++count;
        progress.update(count, static_cast<double>(count));
        if (edited->splices.empty()) continue;
        output.write(unified_diff(edited->file->path(), edited->file->bytes(), edited->splices,
                                  with_colors));
        any_changed = true;
    }
    output.close();
    if (!good) return exit_trouble;
    return any_changed ? exit_success : exit_unchanged;
}

}  // namespace

std::unique_ptr<Command> make_set_command() { return std::make_unique<SetCommand>(); }

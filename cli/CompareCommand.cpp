#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/EntryFile.h"
#include "cli/TextOutput.h"
#include "cli/default_target.h"
#include "cli/options.h"
#include "cli/report.h"
#include "output/layouts.h"
#include "tasks/EntryComparison.h"

namespace {

constexpr int exit_difference = 1;

std::vector<CifEntry> all_of(EntryFile& file) {
    std::vector<CifEntry> entries;
    for (std::optional<CifEntry> entry; file.next(entry);) entries.push_back(std::move(*entry));
    return entries;
}

class CompareCommand : public Command {
public:
    int run() override {
        if (!to_) to_ = target_of_terminal();
        if (!to_) to_ = &rich_text_target_for(RichTextTarget::Use::database);
        EntryFile left(left_);
        const std::vector<CifEntry> left_entries = all_of(left);
        EntryFile right(right_);
        const std::vector<CifEntry> right_entries = all_of(right);
        good_ = left.good() && right.good();
        bool same = left_entries.size() == right_entries.size();
        if (!same && good_) {
            report(left_ + " has " + std::to_string(left_entries.size()) + " entries, " + right_ +
                   " has " + std::to_string(right_entries.size()));
        }
        same = compare(left_entries, right_entries) && same;
        if (!good_) return exit_trouble;
        return same ? exit_success : exit_difference;
    }
    int trouble() const override { return exit_trouble; }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("compare",
                                      "Compares the entries of two CIF files, field by field");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        command.footer(
            "Lines begin with = where both sides are the same, with < and > where they differ; "
            "html5 is "
            "a page\nwith two columns. The exit status is 0 when all is the same, 1 when something "
            "differs and 2 on trouble.");
        add_field_options(command, choices, fields_);
        add_tolerance_option(command, settings_);
        add_row_option(command, choices, "--to", to_, rich_text_targets(),
                       "What to write; unless given, ansi on a terminal and tevo elsewhere");
        command.add_option("A.cif", left_, "One side")->required();
        command.add_option("B.cif", right_, "The other side")->required();
    }

    /// Compares the entries in turn; returns whether all are the same.
    bool compare(const std::vector<CifEntry>& left, const std::vector<CifEntry>& right) {
        TextOutput output;
        const std::unique_ptr<ComparisonLayout> layout = make_comparison_layout(*to_);
        const std::vector<Field> wanted = fields_.list();
        bool same = true;
        output.write(layout->head("Comparison"));
        for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
            const EntryComparison compared(left[i], right[i], wanted, settings_);
            same = same && compared.same;
            for (const Problem& problem : compared.problems) {
                report(problem);
                good_ = false;
            }
            output.write(layout->comparison({left_, std::string(left[i].block.name())},
                                            {right_, std::string(right[i].block.name())},
                                            compared.fields));
        }
        output.write(layout->foot());
        output.close();
        return same;
    }

    const RichTextTarget* to_ = nullptr;
    ChosenFields fields_;
    SearchSettings settings_;
    std::string left_, right_;
    bool good_ = true;  // nothing was reported
};

}  // namespace

std::unique_ptr<Command> make_compare_command() { return std::make_unique<CompareCommand>(); }

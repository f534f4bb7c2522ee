#include <initializer_list>
#include <string_view>

#include "cli/Command.h"
#include "cli/TextOutput.h"
#include "cli/options.h"
#include "tasks/Field.h"

namespace {

/// A line of a table.
std::string row(std::initializer_list<std::string_view> cells) {
    std::string line;
    for (const std::string_view cell : cells) line.append(line.empty() ? "" : "\t").append(cell);
    return line + '\n';
}

/// With commas between them.
std::string names_of(const FindingReasons& reasons) {
    std::string names;
    for (const FindingReason& reason : finding_reasons()) {
        if (!reasons.test(static_cast<std::size_t>(reason.reason))) continue;
        names.append(names.empty() ? "" : ",").append(reason.name);
    }
    return names;
}

class FieldsCommand : public Command {
public:
    int run() override {
        TextOutput output;
        if (!tells_policies_) {
            for (const Field& field : view_->fields())
                output.write(row({field.label, field.group}));
        } else {
            write_policies(output);
        }
        output.close();
        return exit_success;
    }

private:
    CLI::App* add_command(CLI::App& program) override {
        return program.add_subcommand("fields", "Lists the labels and groups of an entry's fields");
    }

    void add_options(CLI::App& command, Choices& choices) override {
        view_ = row_named(views(), "internal");
        add_row_option(command, choices, "--view", view_, views(),
                       "Which fields; internal unless given");
        command.add_flag("--policies", tells_policies_,
                         "How compare takes each field, and what does not count in it; then what "
                         "these ways and reasons are");
    }

    void write_policies(TextOutput& output) const {
        for (const Field& field : view_->fields()) {
            output.write(
                row({field.label, field.comparison->name, names_of(field.comparison->equivalent)}));
        }
        output.write("\n");
        for (const ComparisonKind& kind : comparison_kinds()) {
            output.write(row({kind.name, kind.help}));
        }
        output.write("\n");
        for (const FindingReason& reason : finding_reasons()) {
            output.write(row({reason.name, name_of(reason.kind), reason.help}));
        }
    }

    const View* view_ = nullptr;
    bool tells_policies_ = false;
};

}  // namespace

std::unique_ptr<Command> make_fields_command() { return std::make_unique<FieldsCommand>(); }

#include "cli/comparison_options.h"

#include <string>
#include <string_view>
#include <vector>

#include "cli/options.h"
#include "entries/read_whole.h"

namespace {

/// Adds an option for how far numbers may differ.
void add_limit_option(CLI::App& command, const char* flag, double& limit,
                      const std::string& purpose) {
    command
        .add_option_function<std::string>(
            flag,
            [&limit](const std::string& number) {
                if (!is_tolerance(number)) {
                    throw CLI::ValidationError("'" + number +
                                               "' is not a limit; expected a number of at least 0");
                }
                limit = read_whole<double>(number).value();
            },
            purpose)
        ->type_name("NUMBER");
}

std::string_view trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

/// The reasons with these names, of which there is a comma between any two.
FindingReasons reasons_named(std::string_view names) {
    FindingReasons reasons;
    while (true) {
        const std::size_t comma = std::min(names.find(','), names.size());
        const std::string_view name = trimmed(names.substr(0, comma));
        const FindingReason* const row = row_named(finding_reasons(), name);
        if (!row) {
            std::vector<std::string_view> known;
            for (const FindingReason& reason : finding_reasons()) known.emplace_back(reason.name);
            throw CLI::ValidationError(no_such("reason", std::string(name),
                                               nearest_word(name, known),
                                               "lmrtext fields --policies lists them"));
        }
        reasons.set(static_cast<std::size_t>(row->reason));
        if (comma == names.size()) return reasons;
        names.remove_prefix(comma + 1);
    }
}

void add_reasons_option(CLI::App& command, const char* flag, FindingReasons& reasons,
                        const std::string& purpose) {
    command
        .add_option_function<std::string>(
            flag, [&reasons](const std::string& names) { reasons |= reasons_named(names); },
            purpose)
        ->type_name("REASONS");
}

}  // namespace

void add_comparison_options(CLI::App& command, ComparisonSettings& settings) {
    command.add_flag_callback(
        "--exact", [&settings] { settings.counted.set(); },
        "All that differs counts, to the last byte");
    add_reasons_option(command, "--ignore", settings.ignored,
                       "What shall not count in any field: 'case,accent'; lmrtext fields "
                       "--policies lists what there is");
    add_reasons_option(command, "--count", settings.counted, "What shall count in every field");
    add_limit_option(command, "--sigmas", settings.sigmas,
                     "By how many combined standard uncertainties numbers may differ, 3 unless "
                     "given");
    add_limit_option(command, "--tolerance", settings.tolerance,
                     "By how much numbers may differ besides, in their unit; 0 unless given");
    add_limit_option(command, "--relative-tolerance", settings.relative_tolerance,
                     "By which part of the larger one numbers may differ besides, 0.01 for 1 %; 0 "
                     "unless given");
}

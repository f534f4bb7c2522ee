#include "cli/terms.h"

#include "cli/report.h"
#include "tasks/TermKind.h"

EntryFinder::Terms terms_of(const std::vector<std::string>& written, const TermSettings& settings) {
    EntryFinder::Terms terms;
    for (const std::string& text : written) {
        terms.push_back(make_term(text, settings));
        const std::string_view nearest =
            terms.back()->own_fields().empty() ? nearest_term_kind(text) : "";
        if (nearest.empty()) continue;
        Problem problem;
        problem.level = Problem::Level::note;
        problem.what = "'" + text + "' is looked for as it is; did you mean '";
        problem.what.append(nearest).append(":'?");
        report(problem);
    }
    return terms;
}

#include "output/ComparisonPage.h"

#include <utility>

#include "output/comparison_summary.h"
#include "output/comparison_words.h"
#include "output/html_text.h"
#include "text/TextItem.h"

namespace {

using Counts = ComparisonSummary::Counts;

std::string summary_row(const std::string& label, const Counts& counts) {
    std::string row = "<tr><th scope=\"row\">" + label + "</th>";
    for (const unsigned long count : counts) {
        row.append(count > 0 ? "<td>" : "<td class=\"none\">").append(std::to_string(count));
        row += "</td>";
    }
    return row += "</tr>\n";
}

constexpr char sides_head[] =
    "<thead><tr><th scope=\"col\">Field</th><th scope=\"col\">Left</th>"
    "<th scope=\"col\">Right</th></tr></thead>\n";

/// A pair or an entry by itself; title and source are mark-up.
std::string article(const std::string& anchor, const std::string& title,
                    const std::string& source) {
    return "<article class=\"pair\" id=\"" + anchor + "\" aria-labelledby=\"" + anchor +
           ".top\" tabindex=\"-1\">\n<header>\n<h2 id=\"" + anchor + ".top\">" + title +
           "</h2>\n<p class=\"source\">" + source + "</p>\n</header>\n";
}

std::string listed(const std::string& anchor, const std::string& title, const std::string& what) {
    return "<li><a href=\"#" + anchor + "\">" + title + "</a><p>" + what + "</p></li>\n";
}

}  // namespace

ComparisonPage::ComparisonPage()
    : PageDocument(comparison_script), marks_(rich_text_target_for(RichTextTarget::Use::page)) {}

ComparisonPage::~ComparisonPage() = default;

LaidOutPart ComparisonPage::comparison(const Side& left, const Side& right, PairingReason reason,
                                       const EntryComparison& compared) {
    const std::string anchor = slug(left.block, "pair");
    const std::string title = both(isolated("data_" + left.block), isolated("data_" + right.block));
    std::string rows[3];  // what differs, what is equivalent, what is equal
    std::size_t equals = 0, differences = 0;
    for (const ComparedField& field : compared.fields) {
        const bool differs = is_difference(field.verdict),
                   is_equal = field.verdict == Verdict::equal;
        rows[differs ? 0 : is_equal ? 2 : 1] += row(anchor, field);
        differences += differs ? 1 : 0;
        equals += is_equal ? 1 : 0;
        if (differs) differing_.push_back(slug_of_label(field.label));
    }
    std::string text =
        article(anchor, title,
                both(isolated(without_folders(left.file)), isolated(without_folders(right.file))) +
                    ", " + clause_of(reason) + ": " + count_of_differences(differences));
    if (!rows[0].empty() || !rows[1].empty()) {
        text.append("<table class=\"sides\">\n").append(sides_head).append(rows[0]).append(rows[1]);
        text += "</table>\n";
    }
    if (equals > 0) {
        text.append("<details><summary>")
            .append(count_of_equals(equals, ""))
            .append("</summary>\n");
        text.append("<table class=\"sides\">\n").append(sides_head).append(rows[2]);
        text += "</table>\n</details>\n";
    }
    return {text + "</article>\n", anchor,
            listed(anchor, title, count_of_differences(differences))};
}

LaidOutPart ComparisonPage::only(const Side& entry, Verdict verdict) {
    const std::string anchor = slug(entry.block, "entry");
    const std::string title = isolated("data_" + entry.block), words = words_of(verdict);
    return {article(anchor, title, isolated(without_folders(entry.file)) + ", " + words) +
                "</article>\n",
            anchor, listed(anchor, title, words)};
}

std::string ComparisonPage::add(LaidOutPart part) {
    PageDocument::add(std::move(part));
    for (const std::string& field : std::exchange(differing_, {})) {
        first_.emplace(field, last_anchor() + '.' + field);
    }
    return {};
}

std::string ComparisonPage::foot_with(const ComparisonSummary& summary,
                                      std::span<const Field> compared) {
    std::string head = "<thead><tr><th scope=\"col\">How many</th>";
    for (std::size_t i = 0; i < summary.entries.size(); ++i) {
        head.append("<th scope=\"col\">").append(words_of(static_cast<Verdict>(i)));
        head += "</th>";
    }
    head += "</tr></thead>\n<tbody>\n";
    std::string differing, equal;
    std::size_t equals = 0;
    for (std::size_t i = 0; i < summary.fields.size(); ++i) {
        const Counts& counts = summary.fields[i];
        if (!has_any(counts)) continue;
        std::string label = escaped(compared[i].label);
        const auto first = first_.find(slug_of_label(compared[i].label));
        if (first != first_.end()) {
            label.insert(0, "<a href=\"#" + first->second + "\">").append("</a>");
        }
        const bool is_equal = is_equal_everywhere(counts);
        (is_equal ? equal : differing) += summary_row(label, counts);
        equals += is_equal ? 1 : 0;
    }
    top_ =
        "<section class=\"summary\" aria-labelledby=\"summary-title\">\n"
        "<h2 id=\"summary-title\">Summary</h2>\n<table id=\"summary\">\n";
    top_.append(head).append(summary_row("Entries", summary.entries)).append(differing);
    top_ += "</tbody>\n</table>\n";
    if (equals > 0) {
        top_.append("<details><summary>").append(count_of_equals(equals, " in all entries"));
        top_.append("</summary>\n<table>\n").append(head).append(equal);
        top_ += "</tbody>\n</table>\n</details>\n";
    }
    top_ += "</section>\n";
    return foot();
}

std::string ComparisonPage::summary(const ComparisonSummary& summary,
                                    std::span<const Field> compared) {
    head("Comparison");
    return foot_with(summary, compared);
}

std::string ComparisonPage::row(const std::string& anchor, const ComparedField& field) const {
    const std::string id = anchor + '.' + slug_of_label(field.label);
    std::string row = "<tbody class=\"field ";
    row.append(name_of(field.verdict)).append("\" id=\"").append(id);
    const std::string reasons = reasons_of_difference(field);
    row.append("\" tabindex=\"-1\">\n<tr><th scope=\"row\"");
    row.append(reasons.empty() ? "" : " rowspan=\"2\"");
    row.append("><a class=\"label\" href=\"#").append(id);
    row.append("\">").append(escaped(field.label)).append("</a> <span class=\"verdict\">");
    row.append(words_of(field.verdict)).append("</span></th><td class=\"left\">");
    row.append(cell(field.left, field.findings, DifferenceMarks::left));
    row.append("</td><td class=\"right\">");
    row.append(cell(field.right, field.findings, DifferenceMarks::right)).append("</td></tr>\n");
    if (!reasons.empty()) {
        row.append("<tr class=\"why\"><td colspan=\"2\">").append(escaped(reasons));
        row += "</td></tr>\n";
    }
    return row += "</tbody>\n";
}

std::string ComparisonPage::cell(const std::optional<TextItem>& item,
                                 const std::vector<Finding>& findings,
                                 DifferenceMarks::Side side) const {
    if (!item) return std::string("<span class=\"none\">") + no_text + "</span>";
    return marks_.marked(*item, findings, side).mark_up_text(generator_);
}

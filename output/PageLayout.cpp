#include "output/PageLayout.h"

#include <string_view>

#include "output/comparison_summary.h"
#include "output/finding_sentences.h"
#include "output/match_reason.h"
#include "text/TextItem.h"

namespace {

std::string escaped(const std::string& text) {
    std::string result;
    Html5RichTextGenerator::escape(result, text);
    return result;
}

std::string name(const std::string& text) { return "<bdi>" + escaped(text) + "</bdi>"; }

/// The head of a section, of which both parts are mark-up.
std::string section_head(const std::string& title, const std::string& source) {
    return "<section>\n<h2>" + title + " <small>" + source + "</small></h2>\n";
}

constexpr char section_foot[] = "</section>\n";

/// Why the two texts differ; empty where they are equal.
std::string reasons_of(const ComparedField& field) {
    if (!field.left || !field.right) return words_of(field.verdict);
    if (field.findings.empty()) return {};
    const ComparedText left(*field.left), right(*field.right);
    return FindingSentences(left, right).reasons(field.findings);
}

const char* class_of(Verdict verdict) {
    if (verdict == Verdict::equal) return "pair";
    return verdict == Verdict::equivalent ? "pair equivalent" : "pair different";
}

}  // namespace

PageLayout::PageLayout() : marks_(rich_text_target_for(RichTextTarget::Use::page)) {}

PageLayout::~PageLayout() = default;

std::string PageLayout::head(const std::string& title) {
    return "<!DOCTYPE html>\n"
           "<html lang=\"en\">\n"
           "<head>\n"
           "<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width\">\n"
           "<title>" +
           escaped(title) +
           "</title>\n"
           "<style>\n"
           "body { font: 16px/1.5 sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; "
           "}\n"
           "section { border-top: 1px solid #ccc; }\n"
           "h2 { font-size: 1em; margin: 0.5em 0; }\n"
           "h2 small { color: #666; font-weight: normal; }\n"
           "h3 { font-size: 0.8em; margin: 0.8em 0 0.2em; color: #666; font-weight: normal; "
           "text-transform: uppercase; }\n"
           "dl { margin: 0; }\n"
           "dt { color: #666; float: left; width: 12em; }\n"
           "dd { margin: 0 0 0.3em 12em; overflow-wrap: anywhere; }\n"
           ".pair { display: grid; grid-template-columns: 12em 1fr 1fr; column-gap: 1em; }\n"
           ".pair p { margin: 0.2em 0; overflow-wrap: anywhere; }\n"
           ".pair p:first-child { color: #666; }\n"
           ".pair .why { grid-column: 2 / 4; color: #666; font-size: 0.9em; }\n"
           ".different { background: #fff3e0; }\n"
           ".equivalent { background: #eef4fb; }\n"
           ".found { margin: 0; font-size: 0.8em; color: #666; }\n"
           "bdi, dt, dd, .pair p { unicode-bidi: isolate; }\n"
           "sub, sup { line-height: 0; }\n"
           "</style>\n"
           "</head>\n"
           "<body>\n"
           "<h1>" +
           escaped(title) + "</h1>\n";
}

std::string PageLayout::foot() { return "</body>\n</html>\n"; }

std::string PageLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    std::string section = section_head(name(block), name(file));
    std::string_view group;
    for (const EntryField& field : fields) {
        if (field.group != group) section += "<h3>" + escaped(field.group) + "</h3>\n";
        group = field.group;
        section +=
            "<dl><dt>" + escaped(field.label) + "</dt>\n<dd>" + field.item.mark_up_text(generator_);
        if (!field.matches.empty()) {
            section += "<p class=\"found\">found: " + escaped(reason_of(field.matches)) + "</p>";
        }
        section += "</dd></dl>\n";
    }
    return section + section_foot;
}

std::string PageLayout::comparison(const Side& left, const Side& right, PairingReason reason,
                                   const EntryComparison& compared) {
    std::string section =
        section_head(name("data_" + left.block) + " and " + name("data_" + right.block),
                     name(left.file) + " and " + name(right.file) + ", " + clause_of(reason));
    for (const ComparedField& field : compared.fields) {
        section.append("<div class=\"").append(class_of(field.verdict)).append("\"><p>");
        section.append(escaped(field.label)).append("</p><p>");
        section.append(cell(field.left, field.findings, DifferenceMarks::left)).append("</p><p>");
        section.append(cell(field.right, field.findings, DifferenceMarks::right)).append("</p>");
        const std::string reasons = reasons_of(field);
        if (!reasons.empty()) {
            section.append("<p class=\"why\">").append(escaped(reasons)).append("</p>");
        }
        section += "</div>\n";
    }
    return section + section_foot;
}

std::string PageLayout::only(const Side& entry, Verdict verdict) {
    return section_head(name("data_" + entry.block), name(entry.file) + ", " + words_of(verdict)) +
           section_foot;
}

std::string PageLayout::summary(const ComparisonSummary& summary, std::span<const Field> compared) {
    return head("Comparison") + "<pre>\n" + escaped(summary_as_text(summary, compared)) +
           "</pre>\n" + foot();
}

std::string PageLayout::cell(const std::optional<TextItem>& item,
                             const std::vector<Finding>& findings,
                             DifferenceMarks::Side side) const {
    return item ? marks_.marked(*item, findings, side).mark_up_text(generator_) : "";
}

#include "output/EntryPage.h"

#include "output/folding_table.h"
#include "output/html_text.h"
#include "output/match_reason.h"
#include "output/page_texts.h"

/// Writes one entry.
class EntryPage::Writer {
    using Row = EntryCards::Row;

public:
    Writer(const EntryPage& page, const std::vector<EntryField>& fields, const std::string& block)
        : page_(page), cards_(fields), block_(block), anchor_(slug(identifier(), "entry")) {}

    LaidOutPart written(const std::string& file) {
        text_ = "<article id=\"" + anchor_ + "\" aria-labelledby=\"" + anchor_ + ".top\">\n";
        write_head(file);
        text_ += "<div class=\"cards\">\n";
        for (const EntryCards::Card& card : cards_.cards()) write_card(card);
        text_ += "</div>\n</article>\n";
        return {std::move(text_), anchor_, listing()};
    }

private:
    std::string identifier() const {
        const Row* const row = cards_.head("Identifier");
        return row ? row->field->item.characters() : block_;
    }

    std::string mark_up(const Row& row) const {
        return row.field->item.mark_up_text(page_.generator_);
    }

    /// The attributes that make an element that of a field; `shown` is the mark-up of its value,
    /// empty where it has several.
    std::string attributes(const Row& row, const char* classes, std::string_view shown) const {
        std::string all = " class=\"";
        all.append(classes).append("\" id=\"").append(id_of(row)).append("\" data-field=\"");
        all.append(escaped(row.field->label)).append("\"");
        const std::string forms = page_.copied_.of(row.field->item, shown);
        if (!forms.empty()) all.append(" data-forms='").append(in_quotes(forms)).append("'");
        return all;
    }

    std::string id_of(const Row& row) const {
        return anchor_ + '.' + slug_of_label(row.field->label);
    }

    std::string label(const Row& row) const {
        std::string link = "<a class=\"label\" href=\"#";
        return link.append(id_of(row)).append("\">").append(escaped(row.shown)).append("</a>");
    }

    static std::string found(const Row& row) {
        if (row.field->matches.empty()) return {};
        return "<p class=\"found\">found: " + escaped(reason_of(row.field->matches)) + "</p>";
    }

    void write_head(const std::string& file) {
        text_ += "<header>\n";
        const Row* const name = cards_.name();
        if (name) {
            const std::string shown = mark_up(*name);
            text_.append("<div").append(attributes(*name, "field name", shown)).append(">");
            text_.append(label(*name)).append("<h2 class=\"value\" id=\"").append(anchor_);
            text_.append(".top\">").append(shown).append("</h2>").append(found(*name));
            text_ += "</div>\n";
        } else {
            text_.append("<h2 id=\"").append(anchor_).append(".top\">").append(isolated(block_));
            text_ += "</h2>\n";
        }
        for (const Row& row : cards_.rest_of_head()) {
            const std::string classes = "field " + slug_of_label(row.field->label);
            const std::string shown = mark_up(row);
            text_.append("<div").append(attributes(row, classes.c_str(), shown)).append(">");
            text_.append(label(row)).append(linked(row, shown)).append(found(row));
            text_ += "</div>\n";
        }
        text_.append("<p class=\"source\">").append(isolated(without_folders(file)));
        if (block_ != identifier()) text_.append(", ").append(isolated("data_" + block_));
        text_ += "</p>\n</header>\n";
    }

    static std::string linked(const Row& row, const std::string& shown) {
        const std::string link = EntryCards::link(row);
        if (link.empty()) return "<p class=\"value\">" + shown + "</p>";
        std::string value = "<p><a class=\"value\" href=\"" + link + "\">";
        return value.append(shown).append("</a></p>");
    }

    void write_card(const EntryCards::Card& card) {
        text_.append("<section class=\"card\">\n<h3>")
            .append(escaped(card.title))
            .append("</h3>\n");
        if (card.title == title_of(ReaderField::Place::cell)) write_cell();
        if (!card.rows.empty()) {
            text_ += "<dl>\n";
            for (const Row& row : card.rows) {
                const std::string shown = mark_up(row);
                text_.append("<div").append(attributes(row, "field", shown)).append("><dt>");
                text_.append(label(row)).append("</dt><dd><span class=\"value\">");
                text_.append(shown).append("</span>").append(unit(row)).append(found(row));
                text_ += "</dd></div>\n";
            }
            text_ += "</dl>\n";
        }
        text_ += "</section>\n";
    }

    static std::string unit(const Row& row) {
        if (!*row.unit) return {};
        return "\u00A0<span class=\"unit\">" + escaped(row.unit) + "</span>";
    }

    void write_cell() {
        if (cards_.cell().empty()) return;
        text_ += "<table class=\"cell\">\n<tbody>\n";
        for (const EntryCards::CellRow& row : cards_.cell()) {
            text_.append("<tr")
                .append(attributes(row.row, "field", ""))
                .append("><th scope=\"row\">");
            text_.append(label(row.row)).append("</th>");
            const char* const cell = row.values.size() == 1 ? "<td colspan=\"3\">" : "<td>";
            for (const TextItem& value : row.values) {
                text_.append(cell).append(value.mark_up_text(page_.generator_)).append("</td>");
            }
            text_.append("<td class=\"unit\">")
                .append(escaped(row.row.unit))
                .append("</td></tr>\n");
            const std::string note = found(row.row);
            if (!note.empty()) text_ += "<tr><td colspan=\"5\">" + note + "</td></tr>\n";
        }
        text_ += "</tbody>\n</table>\n";
        if (cards_.is_reduced()) {
            text_.append("<p class=\"note\">").append(EntryCards::reduced_note).append("</p>\n");
        }
    }

    std::string listing() const {
        const std::string length = cards_.first_length(), year = cards_.year();
        std::string line = "<li";
        if (!length.empty()) line.append(" data-length=\"").append(length).append("\"");
        if (!year.empty()) line.append(" data-year=\"").append(escaped(year)).append("\"");
        const Row *const name = cards_.name(), *const formula = cards_.head("Formula");
        line.append("><a href=\"#").append(anchor_).append("\">");
        line.append(name ? mark_up(*name) : escaped(block_)).append("</a><p>");
        const auto add = [&](const char* kind, const std::string& text) {
            if (text.empty()) return;
            line.append("<span class=\"").append(kind).append("\">").append(text);
            line += "</span> ";
        };
        if (formula && formula != name) add("formula", mark_up(*formula));
        if (!length.empty()) add("length", "a " + length + " Å");
        add("year", escaped(year));
        add("identifier", isolated(identifier()));
        return line.append("</p></li>\n");
    }

    const EntryPage& page_;
    EntryCards cards_;
    const std::string& block_;
    std::string anchor_;
    std::string text_;
};

EntryPage::EntryPage() : PageDocument(entries_script) {}
EntryPage::~EntryPage() = default;

LaidOutPart EntryPage::entry(const std::string& file, const std::string& block,
                             const std::vector<EntryField>& fields) {
    return Writer(*this, fields, block).written(file);
}

std::string EntryPage::data() const {
    if (!has_index()) return {};
    return "<script type=\"application/json\" id=\"folding\">" + folding_table() + "</script>\n";
}

// A text in all places of a page and of a report: it is seen, and does nothing else.
#include <algorithm>
#include <set>

#include "fuzz/Input.h"
#include "fuzz/shown_text.h"
#include "markup/DisplayedText.h"
#include "output/EntryPage.h"
#include "tests/HostileReports.h"

namespace {

bool is_letter_or_hyphen(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
}

/// Reads the mark-up of a page: what it is but for its texts, and these.
class PageReader {
public:
    explicit PageReader(const std::string& page) : rest_(page) {
        while (!rest_.empty()) {
            if (rest_.front() == '<') {
                read_tag();
            } else {
                text_ += rest_.substr(0, rest_.find('<'));
                rest_.remove_prefix(std::min(rest_.find('<'), rest_.size()));
            }
        }
        require(open_.empty(), "elements have ends", page);
    }

    const std::string& structure() const { return structure_; }
    const std::string& text() const { return text_; }

private:
    std::string_view take_name() {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), is_letter_or_hyphen);
        const std::string_view name =
            rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
        rest_.remove_prefix(name.size());
        return name;
    }

    bool take(std::string_view text) {
        if (!rest_.starts_with(text)) return false;
        rest_.remove_prefix(text.size());
        return true;
    }

    void read_tag() {
        take("<");
        const bool closes = take("/");
        const std::string_view name = take_name();
        const bool is_of_text = in_texts.find(' ' + std::string(name) + ' ') != in_texts.npos;
        require(!name.empty(), "tags have names", std::string(rest_));
        if (!is_of_text) structure_.append(closes ? " /" : " ").append(name);
        while (take(" ")) read_attribute(is_of_text);
        require(take(">"), "tags have ends", std::string(rest_));
        if (name == "br") return;
        if (!closes) {
            open_.push_back(name);
        } else {
            require(!open_.empty() && open_.back() == name, "elements nest", std::string(rest_));
            open_.pop_back();
        }
    }

    void read_attribute(bool is_of_text) {
        const std::string_view name = take_name();
        require(take("="), "attributes have values", std::string(rest_));
        const std::string quote(rest_.substr(0, 1));
        require(quote == "'" || quote == "\"", "values are in quotes", std::string(rest_));
        take(quote);
        const std::string_view value = rest_.substr(0, rest_.find(quote));
        require(value.size() < rest_.size(), "values have ends", std::string(rest_));
        rest_.remove_prefix(value.size() + 1);
        if (name == "id")
            require(ids_.insert(value).second, "ids are told once", std::string(value));
        if (name == "href") {
            require(value.starts_with('#') || value.starts_with("https://doi.org/10."),
                    "links lead to where they should", std::string(value));
        }
        if (!is_of_text && name != "data-forms") structure_.append(" ").append(name).append("=");
    }

    static constexpr std::string_view in_texts = " b i sub sup span br bdi ";

    std::string_view rest_;
    std::string structure_, text_;
    std::vector<std::string_view> open_;
    std::set<std::string_view> ids_;
};

struct Laid {
    std::string page, latex;
};

Laid laid_out(const std::string& text, const Source& source) {
    static const std::vector<Field> wanted = fields_named("Compound Name,Title,Color,DOI");
    std::vector<EntryField> entry;
    for (const Field& field : wanted) {
        const bool is_link = std::string_view(field.label) == "DOI";
        entry.push_back({field.label, field.group,
                         TextItem(source.make_finder(), is_link ? "10.1/" + text : text)});
    }
    static EntryPage page;
    static const auto report = make_entry_layout(*row_named(show_outputs(), "latex"), true, wanted);
    const LaidOutPart part = page.entry(text, text, entry);
    entry.pop_back();  // the address of a link is not LaTeX
    return {part.text + part.listing, report->entry(text, text, entry).text};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const Source& source = sources()[input.byte() % sources().size()];
    const Source& plain = *row_named(sources(), "plain");
    static const Laid harmless = laid_out("xx", plain);
    static const std::string structure = PageReader(harmless.page).structure(),
                             latex = structure_of_latex(harmless.latex);
    std::string text = "x";
    text.append(input.rest()).append("x");
    for (const Source* kind : {&plain, &source}) {
        Laid laid;
        try {
            laid = laid_out(text, *kind);
        } catch (const std::runtime_error&) {
            return 0;  // no text of that kind
        }
        const PageReader page(laid.page);
        require(page.structure() == structure, "a page is as it is", laid.page + structure);
        require(structure_of_latex(laid.latex) == latex, "a report is as it is", laid.latex);
        if (!html5_keeps(text)) continue;
        const std::string shown = DisplayedText(TextItem(kind->make_finder(), text)).text();
        require(html_text(page.text()).find(shown) != std::string::npos, "the text is seen",
                laid.page);
    }
    return 0;
}

#include "output/PageLayout.h"

#include <string_view>

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

bool is_same(const ComparedField& field) {
    return field.verdict == Verdict::equal || field.verdict == Verdict::equivalent;
}

}  // namespace

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
           ".different { background: #fff3e0; }\n"
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
        section += "<dl><dt>" + escaped(field.label) + "</dt>\n<dd>" +
                   field.item.mark_up_text(generator_) + "</dd></dl>\n";
    }
    return section + section_foot;
}

std::string PageLayout::comparison(const Side& left, const Side& right,
                                   const std::vector<ComparedField>& fields) {
    std::string section =
        section_head(name("data_" + left.block) + " and " + name("data_" + right.block),
                     name(left.file) + " and " + name(right.file));
    for (const ComparedField& field : fields) {
        section += std::string("<div class=\"pair") + (is_same(field) ? "" : " different") + "\"><p>" +
                   escaped(field.label) + "</p><p>" + mark_up(field.left) + "</p><p>" +
                   mark_up(field.right) + "</p></div>\n";
    }
    return section + section_foot;
}

std::string PageLayout::mark_up(const std::optional<TextItem>& item) const {
    return item ? item->mark_up_text(generator_) : "";
}

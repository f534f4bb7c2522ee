#include "app/Page.h"

#include "markup/Html5RichTextGenerator.h"

namespace {

std::string escaped(const std::string& text) {
    std::string result;
    Html5RichTextGenerator::escape(result, text);
    return result;
}

}  // namespace

std::string page_name(const std::string& text) { return "<bdi>" + escaped(text) + "</bdi>"; }

std::string page_head(const std::string& title) {
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

std::string page_section_head(const std::string& title, const std::string& source) {
    return "<section>\n<h2>" + title + " <small>" + source + "</small></h2>\n";
}

std::string page_group(const std::string& group) { return "<h3>" + escaped(group) + "</h3>\n"; }

std::string page_row(const std::string& label, const std::string& mark_up) {
    return "<dl><dt>" + escaped(label) + "</dt>\n<dd>" + mark_up + "</dd></dl>\n";
}

std::string page_pair(const std::string& label, const std::string& left, const std::string& right,
                      bool same) {
    return std::string("<div class=\"pair") + (same ? "" : " different") + "\"><p>" +
           escaped(label) + "</p><p>" + left + "</p><p>" + right + "</p></div>\n";
}

std::string page_section_foot() { return "</section>\n"; }

std::string page_foot() { return "</body>\n</html>\n"; }

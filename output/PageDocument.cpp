#include "output/PageDocument.h"

#include <utility>

#include "output/html_text.h"

namespace {

/// In ids and links; quotes stand in no text.
void replace_anchor(std::string& mark_up, const std::string& old, const std::string& anchor) {
    for (const char* const before : {" id=\"", " href=\"#", " aria-labelledby=\""}) {
        const std::string found = before + old;
        for (std::size_t place = 0; (place = mark_up.find(found, place)) != std::string::npos;) {
            const std::size_t begin = place + found.size() - old.size();
            mark_up.replace(begin, old.size(), anchor);
            place = begin + anchor.size();
        }
    }
}

// Those of the page itself, of which scripts add some.
constexpr const char* ids_of_page[] = {"index",         "index-title", "entries", "summary",
                                       "summary-title", "search",      "order",   "count",
                                       "said",          "folding"};

// How many a browser lays out together, or not yet: it looks after each group in each frame.
constexpr std::size_t lines_of_a_group = 25, parts_of_a_group = 8;

std::size_t size_of(const std::vector<std::string>& texts) {
    std::size_t size = 0;
    for (const std::string& text : texts) size += text.size();
    return size + texts.size() * 4;  // the ends of groups
}

/// Appends texts in groups, and lets go of them.
void append_groups(std::string& page, std::vector<std::string>& texts, std::size_t size,
                   const char* begin, const char* end) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i % size == 0) page += begin;
        page += std::exchange(texts[i], {});
        if (i % size == size - 1 || i + 1 == texts.size()) page += end;
    }
}

}  // namespace

PageDocument::PageDocument(const PageText& script) : script_(script) {
    for (const char* const id : ids_of_page) anchors_.emplace(id, 1);
}

PageDocument::~PageDocument() = default;

std::string PageDocument::head(const std::string& title) {
    title_ = escaped(title);
    return {};
}

std::string PageDocument::add(LaidOutPart part) {
    std::string anchor = part.anchor;
    while (!anchors_.emplace(anchor, 1).second) {
        unsigned long& number = anchors_[part.anchor];
        anchor = part.anchor + "-" + std::to_string(++number);
    }
    if (anchor != part.anchor) {
        replace_anchor(part.text, part.anchor, anchor);
        replace_anchor(part.listing, part.anchor, anchor);
    }
    texts_.push_back(std::move(part.text));
    listings_.push_back(std::move(part.listing));
    last_anchor_ = std::move(anchor);
    return {};
}

std::string PageDocument::foot() {
    std::string page =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src '";
    page.append(page_style.hash).append("'; script-src '").append(script_.hash);
    page.append(
        "'; base-uri 'none'; form-action 'none'\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<meta name=\"color-scheme\" content=\"light dark\">\n<title>");
    page.append(title_).append("</title>\n<style>").append(page_style.text);
    page.append("</style>\n</head>\n").append(has_index() ? "<body class=\"indexed\">" : "<body>");
    page += '\n';
    if (has_index()) page += "<a class=\"skip\" href=\"#entries\">To the entries</a>\n";
    page.append("<header class=\"page\">\n<h1>").append(title_).append("</h1>\n</header>\n");
    page += top();
    if (has_index()) {
        page.append("<nav id=\"index\" aria-labelledby=\"index-title\">\n");
        page += "<h2 id=\"index-title\">Index</h2>\n";
        append_groups(page, listings_, lines_of_a_group, "<ol>\n", "</ol>\n");
        page += "</nav>\n";
    }
    page += "<main id=\"entries\">\n";
    const std::string behind = "</main>\n" + data();
    page.reserve(page.size() + size_of(texts_) + behind.size() + script_.text.size() + 100);
    append_groups(page, texts_, parts_of_a_group, "<div class=\"group\">\n", "</div>\n");
    page += behind;
    page.append("<script>").append(script_.text).append("</script>\n</body>\n</html>\n");
    return page;
}

std::string PageDocument::top() const { return {}; }
std::string PageDocument::data() const { return {}; }

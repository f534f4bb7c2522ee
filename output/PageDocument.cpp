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

}  // namespace

PageDocument::~PageDocument() = default;

std::string PageDocument::head(const std::string& title) {
    title_ = escaped(title);
    return {};
}

std::string PageDocument::add(LaidOutPart part) {
    std::string anchor = part.anchor;
    for (unsigned long number = 2; !anchors_.insert(anchor).second; ++number) {
        anchor = part.anchor + "-" + std::to_string(number);
    }
    if (anchor != part.anchor) {
        replace_anchor(part.text, part.anchor, anchor);
        replace_anchor(part.listing, part.anchor, anchor);
    }
    texts_.push_back(std::move(part.text));
    listing_ += part.listing;
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
        page.append("<h2 id=\"index-title\">Index</h2>\n<ol>\n").append(listing_);
        page.append("</ol>\n</nav>\n");
    }
    page += "<main id=\"entries\">\n";
    std::size_t size = page.size() + script_.text.size();
    for (const std::string& text : texts_) size += text.size();
    const std::string behind = "</main>\n" + data();
    page.reserve(size + behind.size() + 100);
    for (std::string& text : texts_) page += std::exchange(text, {});
    page += behind;
    page.append("<script>").append(script_.text).append("</script>\n</body>\n</html>\n");
    return page;
}

std::string PageDocument::top() const { return {}; }
std::string PageDocument::data() const { return {}; }

#include "tasks/TextSearcher.h"

TextSearcher::TextSearcher(const Source& from, const SearchKind& how,
                           const SearchSettings& settings, const std::string& term)
    : highlighting_(from, make_search(how, settings), term), item_(highlighting_.finder()) {}

void TextSearcher::search(const std::string& text) {
    std::vector<StringSlice> ranges;
    static_cast<void>(found().search(text, ranges));
}

const TextItem& TextSearcher::highlight(const std::string& text) {
    item_.set_text(text);
    return item_;
}

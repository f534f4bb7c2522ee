#include "tasks/Highlighting.h"

#include <utility>

#include "finders/TextSearchStyleFinder.h"

Highlighting::Highlighting(const Source& source, THandle<TextSearch> search,
                           const std::string& term)
    : search_(make_handle<OrderedSearch>(std::move(search))),
      finder_(make_handle<TextSearchStyleFinder>(search_, source.make_finder())) {
    search_->set_search_term(term);
}

#include "tasks/Highlighting.h"

#include <utility>

#include "finders/TextSearchStyleFinder.h"
#include "tasks/ShownSearch.h"

Highlighting::Highlighting(const Source& source, THandle<TextSearch> search,
                           const std::string& term)
    : search_(make_handle<OrderedSearch>(source.is_coded
                                             ? make_handle<ShownSearch>(std::move(search), source)
                                             : std::move(search))),
      finder_(make_handle<TextSearchStyleFinder>(search_, source.make_finder())) {
    search_->set_search_term(term);
}

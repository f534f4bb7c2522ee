#include "search/TextSearch.h"

TextSearch::~TextSearch() = default;

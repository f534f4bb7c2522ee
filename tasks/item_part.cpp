#include "tasks/item_part.h"

#include <algorithm>

#include "finders/InputTextStyleFinder.h"
#include "tasks/styles_of.h"

TextItem part_of(const TextItem& item, const StringSlice& range) {
    TextItem part(make_handle<InputTextStyleFinder>(),
                  item.characters().substr(range.from(), range.length()));
    for (const auto& style : styles_of(item)) {
        const unsigned int from = std::max(style->from(), range.from());
        const unsigned int to = std::min(style->to(), range.to());
        if (from < to) lay_style(*style, from - range.from(), to - range.from(), part);
    }
    return part;
}

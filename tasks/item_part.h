#pragma once

#include "text/StringSlice.h"
#include "text/TextItem.h"

/// A part of an item with what styles there are in it; a style that reaches beyond is cut. The
/// range is one of whole characters and codes. O(n + m) for n characters and m styles.
TextItem part_of(const TextItem& item, const StringSlice& range);

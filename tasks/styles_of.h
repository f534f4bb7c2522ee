#pragma once

#include <vector>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"
#include "text/TextItem.h"
#include "text/TextItemStyle.h"

/// The styles of an item, in the order in which they were laid on it.
std::vector<THandle<TextItemStyle>> styles_of(const TextItem& item);

/// Lays a style like that one on [from, to) of an item.
void lay_style(const TextItemStyle& style, unsigned int from, unsigned int to, TextItem& item);

/// Whether a generator writes a character otherwise when `create` has laid a style on it.
bool shows_style(RichTextGenerator& generator, void (*create)(TextItem& item));

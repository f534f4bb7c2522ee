#include "markup/MarkdownTagFactory.h"

MarkdownTagFactory::~MarkdownTagFactory() = default;

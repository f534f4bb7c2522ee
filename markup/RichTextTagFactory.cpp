#include "markup/RichTextTagFactory.h"

RichTextTagFactory::~RichTextTagFactory() = default;

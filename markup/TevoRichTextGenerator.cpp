#include "markup/TevoRichTextGenerator.h"

#include "markup/TevoTagFactory.h"
#include "markup/TextItemToTevoGreek.h"

TevoRichTextGenerator::TevoRichTextGenerator()
    : RichTextGenerator(make_handle<TevoTagFactory>(), make_handle<TextItemToTevoGreek>()) {}

TevoRichTextGenerator::~TevoRichTextGenerator() = default;

#include "markup/QtRichTextGenerator.h"

#include "markup/QtTagFactory.h"
#include "markup/TextItemToQtGreek.h"

QtRichTextGenerator::QtRichTextGenerator()
    : RichTextGenerator(make_handle<QtTagFactory>(), make_handle<TextItemToQtGreek>()) {}

QtRichTextGenerator::~QtRichTextGenerator() = default;

#include "markup/CifRichTextGenerator.h"

#include "markup/CifTagFactory.h"
#include "markup/TextItemToCifGreek.h"

CifRichTextGenerator::CifRichTextGenerator()
    : RichTextGenerator(make_handle<CifTagFactory>(), make_handle<TextItemToCifGreek>()) {}

CifRichTextGenerator::~CifRichTextGenerator() = default;

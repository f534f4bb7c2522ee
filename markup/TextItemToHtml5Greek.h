#pragma once

#include "markup/TextItemToUnicodeGreek.h"

/// The same under a name of its own in errors.
class TextItemToHtml5Greek : public TextItemToUnicodeGreek {
public:
    TextItemToHtml5Greek() : TextItemToUnicodeGreek("TextItemToHtml5Greek") {}
    ~TextItemToHtml5Greek() override;
};

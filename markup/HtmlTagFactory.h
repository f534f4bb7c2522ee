#pragma once

#include "markup/HTMLQtCommonTagFactory.h"

/// The tags of HTML with font tags.
class HtmlTagFactory : public HTMLQtCommonTagFactory {
public:
    ~HtmlTagFactory() override;
};

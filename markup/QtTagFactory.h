#pragma once

#include "markup/HTMLQtCommonTagFactory.h"

/// The tags of Qt rich text.
class QtTagFactory : public HTMLQtCommonTagFactory {
public:
    ~QtTagFactory() override;
};

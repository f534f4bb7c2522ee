#pragma once

#include <string>

#include "text/TextItem.h"

/// How one output target spells the Greek letters. A converter never changes, so that any number of
/// threads may share it.
class TextItemToOtherGreek {
public:
    TextItemToOtherGreek() = default;
    TextItemToOtherGreek(const TextItemToOtherGreek&) = delete;
    TextItemToOtherGreek& operator=(const TextItemToOtherGreek&) = delete;
    virtual ~TextItemToOtherGreek();

    /// The target's text for `symbol`; throws std::range_error "Unknown sym. " and the name of the
    /// converter's class for a value that it cannot write.
    virtual std::string convert(TextItem::GreekSymbol symbol) const = 0;
};

#pragma once

#include <string>

/// A part of a document that was laid out: an entry, or a comparison of two.
struct LaidOutPart {
    std::string text;
    std::string anchor{};   ///< By which links find it; parts that wish for the same get numbers.
    std::string listing{};  ///< Its line in the document's index; empty where there is none.
};

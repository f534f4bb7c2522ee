#pragma once

#include <string_view>

/// How the last page of an article stands to the first.
enum class PageOrder {
    unknown,   ///< One of them is no page number.
    right,     ///< Not before the first, where "38" behind "1234" is 1238.
    reversed,  ///< Before it.
    unlike,    ///< They are of different kinds: "i136" and "o138".
};

/// Of pages such as "1234", "o123", "S12" or "123A".
PageOrder page_order(std::string_view first, std::string_view last);

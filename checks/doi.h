#pragma once

#include <string>
#include <string_view>

/// How a text stands to the DOI that it is to be.
struct DoiReading {
    enum State {
        right,      ///< It is one: "10.1107/S0108270103025769".
        decorated,  ///< There is one in it, with an address, blanks or the like around it.
        none,
    };

    State state;
    std::string doi{};  ///< That which is decorated.
};

/// Reads one, "10." with four to nine digits, a stroke and printing characters of ASCII. Linear.
DoiReading read_doi(std::string_view text);

#pragma once

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <memory>
#include <string>

#include "host/RegexResults.h"

/// The match data of the searches that fill one RegexResults in turn.
struct RegexResults::Match {
    struct Free {
        void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
    };

    std::unique_ptr<pcre2_match_data, Free> data;
    unsigned int capacity = 0;         // of data
    const PCRE2_SIZE* ends = nullptr;  // where each number begins and ends, in data
    const std::string* text = nullptr;
    unsigned int size = 0;

    /// Sees to it that there is room for `numbers` numbers.
    void prepare(unsigned int numbers);
};

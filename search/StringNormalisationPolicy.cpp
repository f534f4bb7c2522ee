#include "search/StringNormalisationPolicy.h"

#include <cctype>
#include <cstdio>

namespace {

/// What the classification functions take for `c`. The byte 255 stands for none of their
/// characters: as a signed char it is the same as EOF.
int classified(char c) { return c == '\xFF' ? EOF : static_cast<unsigned char>(c); }

}  // namespace

StringNormalisationPolicy::StringNormalisationPolicy(unsigned int flags,
                                                     const std::string& extra_characters)
    : flags_(flags) {
    for (const char c : extra_characters) extra_characters_.set(static_cast<unsigned char>(c));
}

bool StringNormalisationPolicy::drops(char c) const {
    const int character = classified(c);
    return (has(drop_alpha) && std::isalpha(character) != 0) ||
           (has(drop_digit) && std::isdigit(character) != 0) ||
           (has(drop_punct) && std::ispunct(character) != 0) ||
           (has(drop_space) && std::isspace(character) != 0) ||
           extra_characters_.test(static_cast<unsigned char>(c));
}

char StringNormalisationPolicy::converted(char c) const {
    if (!has(to_upper)) return c;
    return static_cast<char>(std::toupper(classified(c)));
}

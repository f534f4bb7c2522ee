#include "search/StringNormalisationPolicy.h"

#include "text/internal/character_class.h"

StringNormalisationPolicy::StringNormalisationPolicy(unsigned int flags,
                                                     const std::string& extra_characters)
    : flags_(flags) {
    for (const char c : extra_characters) extra_characters_.set(static_cast<unsigned char>(c));
}

bool StringNormalisationPolicy::drops(char c) const {
    return (has(drop_alpha) && is_letter(c)) || (has(drop_digit) && is_digit(c)) ||
           (has(drop_punct) && is_punctuation(c)) || (has(drop_space) && is_space(c)) ||
           extra_characters_.test(static_cast<unsigned char>(c));
}

char StringNormalisationPolicy::converted(char c) const {
    return has(to_upper) ? ::to_upper(c) : c;
}

#pragma once

#include <bitset>
#include <string>

/// What is dropped from a text before it is compared loosely, and whether case counts. The classes
/// of characters are those of the process's current locale, byte by byte.
class StringNormalisationPolicy {
public:
    /// Each bit drops a class of characters; the last changes those that are kept.
    enum Flag : unsigned int {
        drop_alpha = 0x01,
        drop_digit = 0x02,
        drop_punct = 0x04,
        drop_space = 0x08,
        to_upper = 0x10,
    };

    /// `flags` is a set of Flag bits, others are ignored; each of `extra_characters` is dropped
    /// too.
    StringNormalisationPolicy(unsigned int flags, const std::string& extra_characters);

    /// Whether the policy drops `c`.
    bool drops(char c) const;
    /// `c`, in upper case where the policy says so.
    char converted(char c) const;

private:
    bool has(Flag flag) const { return (flags_ & flag) != 0; }

    unsigned int flags_;
    std::bitset<256> extra_characters_;  // by their bytes
};

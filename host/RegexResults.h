#pragma once

#include <memory>
#include <string>

/// Where the last search of a Regex matched.
///
/// Number 0 is the whole match, the numbers from 1 on are the pattern's parenthesised groups.
/// Positions count characters of the searched string. The string is not copied: it must live on,
/// unchanged, for as long as text() is called.
/// One object may be used for any number of searches in turn, which saves their allocations.
class RegexResults {
public:
    /// No match.
    RegexResults();
    /// Takes the match, and leaves none in `other`.
    /// @{
    RegexResults(RegexResults&& other) noexcept;
    RegexResults& operator=(RegexResults&& other) noexcept;
    /// @}
    ~RegexResults();

    /// How many numbers there are: the groups and the whole match; 0 without a match.
    unsigned int size() const;
    /// Whether that number took part in the match.
    bool matched(unsigned int number) const;
    /// First position, one past the last position, and the characters between. All throw
    /// std::out_of_range for a number that is not below size() or did not take part.
    /// @{
    unsigned int start(unsigned int number = 0) const;
    unsigned int end(unsigned int number = 0) const;
    std::string text(unsigned int number = 0) const;
    /// @}

private:
    friend class Regex;
    struct Match;  // the host's own

    std::unique_ptr<Match> match_;
};

#pragma once

#include <memory>
#include <string>

class RegexResults;

/// The host's compiled regular expression, in Perl's syntax over bytes and the "C" locale.
/// It is never changed after construction: any number of threads may search with it.
class Regex {
public:
    /// Option for patterns in free-spacing syntax: white space in the pattern is ignored and "#"
    /// starts a comment that runs to the end of the line.
    static constexpr unsigned int free_spacing = 8;

    /// Throws std::invalid_argument, with the reason and its position in the pattern, when the
    /// pattern does not compile or an option is unknown.
    explicit Regex(const std::string& pattern, unsigned int options = 0);
    Regex(const Regex&) = delete;
    Regex& operator=(const Regex&) = delete;
    ~Regex();

    /// Searches `text` for the first match that begins at `position` or later and says where it is
    /// in `results`, which are empty when there is none, as for a position beyond the end.
    /// `flags` belong to the host; the default host knows none and takes no notice of them.
    /// Throws std::runtime_error when the search reaches a limit.
    bool search_from_position(const std::string& text, unsigned int position, RegexResults& results,
                              unsigned int flags = 0) const;
    /// A text that ends with the call is refused: the results refer to it.
    bool search_from_position(const std::string&& text, unsigned int position,
                              RegexResults& results, unsigned int flags = 0) const = delete;

private:
    struct Program;  // the host's own

    std::unique_ptr<Program> program_;
};

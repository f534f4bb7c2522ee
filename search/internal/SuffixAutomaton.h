#pragma once

#include <string_view>
#include <vector>

/// Everything that stands in a text, for asking what of another text stands there too, one
/// character after the other: the smallest automaton that accepts each suffix of the text (Blumer
/// et al., Theoretical Computer Science 40, 1985). At most two states and four edges for each
/// character; building it and each step take at most as many look-ups as there are different
/// characters.
class SuffixAutomaton {
public:
    /// `text` is not kept. Throws std::length_error for more than 4294967294 characters.
    explicit SuffixAutomaton(std::string_view text);

    /// Where the reading of another text stands: the longest of the runs that end there and also
    /// stand in the automaton's text.
    struct Match {
        unsigned int state = 0;
        unsigned int length = 0;  // in characters
    };

    /// Reads one more character.
    void read(char c, Match& match) const;

private:
    struct State {
        unsigned int length = 0;  // of the longest run that leads here
        unsigned int suffix = 0;  // where the longest of its suffixes leads that goes on otherwise
        unsigned int edges = 0;   // the first of its edges
    };
    struct Edge {
        char character = 0;
        unsigned int to = 0;
        unsigned int next = 0;  // of the same state; 0: the last
    };

    /// The edge of `state` for `c`; 0: none.
    unsigned int edge(unsigned int state, char c) const;
    void add_edge(unsigned int state, char c, unsigned int to);
    unsigned int copy_of(unsigned int state, unsigned int length);
    void append(char c);

    std::vector<State> states_{{}};
    std::vector<Edge> edges_{{}};  // the first is none
    unsigned int last_ = 0;        // where the whole text leads
};

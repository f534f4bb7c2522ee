#include "search/internal/SuffixAutomaton.h"

#include "text/Position.h"

namespace {

constexpr unsigned int root = 0;
constexpr unsigned int no_edge = 0;

}  // namespace

SuffixAutomaton::SuffixAutomaton(std::string_view text) {
    const std::size_t length = length_of(text);
    states_.reserve(2 * length + 1);
    edges_.reserve(2 * length + 1);
    for (const char c : text) append(c);
}

void SuffixAutomaton::read(char c, Match& match) const {
    unsigned int on = edge(match.state, c);
    while (on == no_edge && match.state != root) {
        match.state = states_[match.state].suffix;
        match.length = states_[match.state].length;
        on = edge(match.state, c);
    }
    if (on == no_edge) return;
    match.state = edges_[on].to;
    ++match.length;
}

unsigned int SuffixAutomaton::edge(unsigned int state, char c) const {
    unsigned int found = states_[state].edges;
    while (found != no_edge && edges_[found].character != c) found = edges_[found].next;
    return found;
}

void SuffixAutomaton::add_edge(unsigned int state, char c, unsigned int to) {
    edges_.push_back({c, to, states_[state].edges});
    states_[state].edges = static_cast<unsigned int>(edges_.size() - 1);
}

unsigned int SuffixAutomaton::copy_of(unsigned int state, unsigned int length) {
    const auto copy = static_cast<unsigned int>(states_.size());
    states_.push_back({length, states_[state].suffix, no_edge});
    for (unsigned int e = states_[state].edges; e != no_edge; e = edges_[e].next) {
        add_edge(copy, edges_[e].character, edges_[e].to);
    }
    return copy;
}

void SuffixAutomaton::append(char c) {
    const auto added = static_cast<unsigned int>(states_.size());
    states_.push_back({states_[last_].length + 1, root, no_edge});
    unsigned int state = last_;
    last_ = added;
    while (edge(state, c) == no_edge) {
        add_edge(state, c, added);
        if (state == root) return;
        state = states_[state].suffix;
    }
    const unsigned int target = edges_[edge(state, c)].to;
    const unsigned int length = states_[state].length + 1;
    if (states_[target].length == length) {
        states_[added].suffix = target;
        return;
    }
    // The target is also reached by longer runs, which go on otherwise from here: a copy of it
    // takes over the shorter ones.
    const unsigned int copy = copy_of(target, length);
    states_[target].suffix = copy;
    states_[added].suffix = copy;
    for (unsigned int e = edge(state, c); edges_[e].to == target; e = edge(state, c)) {
        edges_[e].to = copy;
        if (state == root) break;
        state = states_[state].suffix;
    }
}

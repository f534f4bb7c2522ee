#pragma once

#include <iterator>
#include <random>
#include <string>

/// The same numbers on every machine.
class Random {
public:
    explicit Random(unsigned int seed) : engine_(seed) {}

    unsigned int operator()() { return static_cast<unsigned int>(engine_()); }

private:
    std::mt19937 engine_;
};

/// A text of up to `most` of the pieces.
template <class Pieces>
std::string random_text(Random& random, const Pieces& pieces, unsigned int most) {
    std::string text;
    for (unsigned int n = random() % (most + 1); n > 0; --n) {
        text += pieces[random() % std::size(pieces)];
    }
    return text;
}

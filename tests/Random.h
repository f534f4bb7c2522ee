#pragma once

#include <random>

/// The same numbers on every machine.
class Random {
public:
    explicit Random(unsigned int seed) : engine_(seed) {}

    unsigned int operator()() { return static_cast<unsigned int>(engine_()); }

private:
    std::mt19937 engine_;
};

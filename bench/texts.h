#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"

/// The lines of a file of the data folder; throws std::runtime_error when there is none.
std::vector<std::string> lines_of(const std::string& file);

/// The names with Greek letters or scripts, as the generator writes them.
std::vector<std::string> names_by(const THandle<RichTextGenerator>& generator);

/// The value in the middle of one or more, which it puts into another order.
double median(std::vector<double>& values);

/// What a piece of work takes, as the median of many times.
struct PairedTime {
    double seconds;
    double limits;  ///< As a multiple of the limit.
};

/// Runs `process` as often as the benchmark wants. Its limit is one allocation of each text, a copy
/// of it and its deallocation, what nothing that returns these texts can fall below. It is measured
/// in turns with it, as a machine that others use changes its pace.
PairedTime timed_beside_limit(benchmark::State& state, const std::vector<std::string>& texts,
                              const std::function<void()>& process);

std::string repeated(const std::string& unit, std::size_t length);

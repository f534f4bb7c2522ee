#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"

/// The lines of a file of the data folder; throws std::runtime_error when there is none.
std::vector<std::string> lines_of(const std::string& file);

/// The names with Greek letters or scripts, as the generator writes them.
std::vector<std::string> names_by(const THandle<RichTextGenerator>& generator);

/// Runs `process` as often as the benchmark wants; returns the seconds that one run takes.
template <class Process>
double timed(benchmark::State& state, Process process) {
    const auto begin = std::chrono::steady_clock::now();
    for (auto _ : state) process();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count() / static_cast<double>(state.iterations());
}

/// The time in seconds for one allocation of each text, a copy of it and its deallocation: what no
/// operation that returns these texts can fall below.
double limit_of(const std::vector<std::string>& texts);

std::string repeated(const std::string& unit, std::size_t length);

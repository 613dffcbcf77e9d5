#pragma once

// Benchmarks in pairs: our own code and a peer that does the same. Only the ratio of the two means anything
// on a shared machine, so both are measured in turns (own, peer, own, peer, ...) and their medians divided.

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace quorix::bench {

using Body = std::function<void(benchmark::State&)>;

/// Runs `function` once per iteration and keeps its result alive.
template <class Function>
Body Loop(Function function) {
    return [function](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(function());
        }
    };
}

/// How often each side of a pair is measured; the table shows medians.
inline constexpr int kRounds = 7;

/// Registers both sides under `name`. The goal is the largest ratio own time / peer time that is wanted; with
/// 0 there is no goal.
void RegisterPair(const std::string& name, Body own, Body peer, double goal);

/// Runs the registered pairs that Google Benchmark's own options (--benchmark_filter and the like) select,
/// and prints one row each: nanoseconds of both sides, ratio, goal. Gives the exit code of the program: 1 for
/// bad options, and 2 if --check was given and a goal was missed.
int RunPairs(int argc, char** argv);

}  // namespace quorix::bench

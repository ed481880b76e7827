// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <functional>
#include <vector>

namespace boulix::bench_support {

/// Tells how long an action takes, in seconds.
using Stopwatch = std::function<double(const std::function<void()> &action)>;

/// How long `action` takes, in seconds.
inline double secondsOf(const std::function<void()> &action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// How long the processor works on `action`, in seconds. For work of a few milliseconds without
/// a disk this is the steadier measure on a machine that has other things to do as well.
inline double processorSecondsOf(const std::function<void()> &action) {
    const std::clock_t start = std::clock();
    action();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

inline double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Measures `action` as a multiple of `reference`. Both run by turns, so that they see the same
/// machine; the reported counter `ratio` is that of the medians and ought to stay below `goal`.
/// The time of the benchmark is that of one action, measured by `timeOf`.
inline void measureRatio(benchmark::State &state, double goal, const std::function<void()> &action,
                         const std::function<void()> &reference,
                         const Stopwatch &timeOf = secondsOf) {
    std::vector<double> actionTimes;
    std::vector<double> referenceTimes;
    for (auto _ : state) {
        referenceTimes.push_back(timeOf(reference));
        actionTimes.push_back(timeOf(action));
        state.SetIterationTime(actionTimes.back());
    }
    state.counters["ratio"] = medianOf(actionTimes) / medianOf(referenceTimes);
    state.counters["goal"] = goal;
}

} // namespace boulix::bench_support

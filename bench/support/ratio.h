// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>
#include <vector>

namespace boulix::bench_support {

/// How long `action` takes, in seconds.
inline double secondsOf(const std::function<void()> &action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Measures `action` as a multiple of `reference`. Both run by turns, so that they see the same
/// machine; the reported counter `ratio` is that of the medians and ought to stay below `goal`.
/// The time of the benchmark is that of one action.
inline void measureRatio(benchmark::State &state, double goal, const std::function<void()> &action,
                         const std::function<void()> &reference) {
    std::vector<double> actionTimes;
    std::vector<double> referenceTimes;
    for (auto _ : state) {
        referenceTimes.push_back(secondsOf(reference));
        actionTimes.push_back(secondsOf(action));
        state.SetIterationTime(actionTimes.back());
    }
    state.counters["ratio"] = medianOf(actionTimes) / medianOf(referenceTimes);
    state.counters["goal"] = goal;
}

} // namespace boulix::bench_support

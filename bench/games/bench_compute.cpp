// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The computation of systems: against the literal search, and at its largest.

#include "games/gameWorkplace.h"
#include "games/literalCompute.h"
#include "support/ratio.h"

namespace boulix {
namespace {

using bench_support::GameWorkplace;

std::int16_t argument(const benchmark::State &state, std::size_t index) {
    return static_cast<std::int16_t>(state.range(index));
}

/// Arguments: nFixed, nWin, nSelect.
void ComputeAgainstTheLiteralSearch(benchmark::State &state) {
    const GameWorkplace place;
    const auto [nFixed, nWin, nSelect] =
        std::array{argument(state, 0), argument(state, 1), argument(state, 2)};
    bench_support::measureRatio(
        state, 1.0 / 200, [=] { gameDef().compute(nFixed, nWin, nSelect); },
        [=] { benchmark::DoNotOptimize(literal::compute(nFixed, nWin, nSelect)); });
    state.counters["times"] = 1 / state.counters["ratio"];
}
BENCHMARK(ComputeAgainstTheLiteralSearch)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->Args({0, 4, 16})
    ->Args({0, 3, 18})
    ->Args({2, 4, 20});

/// The largest systems: seconds, rows, megabytes, and how long the window ever had to wait.
void ComputeTheLargest(benchmark::State &state) {
    GameWorkplace place;
    for (auto _ : state) {
        gameDef def;
        const std::int64_t before = bench_support::memoryInUse();
        bench_support::forgetPeak();
        state.SetIterationTime(bench_support::secondsOf(
            [&] { def.compute(argument(state, 0), argument(state, 1), argument(state, 2)); }));
        state.counters["MB"] =
            static_cast<double>(bench_support::memoryPeak() - before) / (1024 * 1024);
        state.counters["rows"] = def.nComb();
        state.counters["longestGap_ms"] = place.desktop.longestGapMilliseconds();
    }
}
BENCHMARK(ComputeTheLargest)
    ->UseManualTime()
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->Args({0, 1, 49})
    ->Args({0, 2, 49})
    ->Args({0, 3, 49})
    ->Args({0, 4, 49})
    ->Args({0, 5, 49})
    ->Args({0, 6, 49})
    ->Args({1, 4, 49})
    ->Args({2, 5, 49});

} // namespace
} // namespace boulix

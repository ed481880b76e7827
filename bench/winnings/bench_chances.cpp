// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The chances of games of any size, against looking at every grid in every case.

#include "core/modMaths.h"
#include "games/game.h"
#include "games/gameWorkplace.h"
#include "sill/frmProgress.h"
#include "support/ratio.h"
#include "winnings/chances.h"
#include "winnings/plainChances.h"
#include "winnings/rapport.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace boulix {
namespace {

constexpr int lottery = 49;
constexpr std::int64_t allGrids = 13'983'816;
constexpr float price = 0.6F;

std::array<int, 7> sevenNumbers(std::mt19937 &random) {
    std::array<int, lottery> all{};
    std::iota(all.begin(), all.end(), 1);
    std::array<int, 7> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        std::swap(all[i], all[i + random() % (all.size() - i)]);
        numbers[i] = all[i];
    }
    return numbers;
}

/// So many random grids, or all there are.
void fill(game &grids, std::int64_t count, std::mt19937 &random) {
    gameComb::Numbers grid{};
    if (count < allGrids) {
        for (std::int64_t i = 0; i < count; ++i) {
            const auto numbers = sevenNumbers(random);
            std::transform(numbers.begin(), numbers.begin() + 6, grid.begin(),
                           [](int n) { return static_cast<std::int16_t>(n); });
            grids.Add(GridRef(gameComb(grid)));
        }
        return;
    }
    for (std::int32_t rank = 0; rank < allGrids; ++rank) {
        gameComb comb = modMaths::combFromRank(rank, 6);
        for (int i = 1; i <= gameComb::size; ++i)
            comb.num(i, static_cast<std::int16_t>(comb.num(i) + 1));
        grids.Add(GridRef(comb));
    }
}

/// The seconds that the plain way would take for all cases, from those for some random ones.
double plainSeconds(const game &grids, std::mt19937 &random) {
    const auto sample = static_cast<int>(std::max<std::int64_t>(1, 2'000'000 / grids.Count()));
    std::int64_t wins = 0;
    const double seconds = bench_support::processorSecondsOf([&] {
        for (int i = 0; i < sample; ++i) {
            const auto n = sevenNumbers(random);
            wins +=
                bench_support::plainCase(grids, {n[0], n[1], n[2], n[3], n[4], n[5]}, n[6]).best;
        }
    });
    benchmark::DoNotOptimize(wins);
    return seconds / sample * static_cast<double>(allCases(lottery));
}

/// Whether all cases are accounted for; with all grids each one has a grid of six numbers.
bool isRight(const GameChances &chances) {
    const auto sum = std::accumulate(chances.best.begin(), chances.best.end(), std::uint64_t{0});
    return sum == chances.cases && (chances.grids < allGrids || chances.best[11] == chances.cases);
}

/// Argument: the grids. The time, that of the processor, and `MB` (beside the game itself) are what
/// counts; `times` tells how much longer the plain way would take.
void ChancesOfGrids(benchmark::State &state) {
    const bench_support::GameWorkplace place;
    modMaths::precomputeCnk();
    rapport prizes;
    for (std::int16_t i = 0; i < rapport::size; ++i)
        prizes.Value(i, static_cast<float>(i) + 0.1F);
    std::mt19937 random(1);
    game grids;
    fill(grids, state.range(0), random);
    const double plain = plainSeconds(grids, random);
    double seconds = 0;
    for (auto _ : state) {
        const std::int64_t before = bench_support::memoryInUse();
        bench_support::forgetPeak();
        frmProgress progress;
        seconds = bench_support::processorSecondsOf([&] {
            const auto chances = chancesOf(grids, prizes, price, progress);
            if (!chances || !isRight(*chances))
                state.SkipWithError("the cases do not add up");
        });
        state.SetIterationTime(seconds);
        state.counters["MB"] =
            static_cast<double>(bench_support::memoryPeak() - before) / (1024 * 1024);
    }
    state.counters["times"] = plain / seconds;
}
BENCHMARK(ChancesOfGrids)
    ->UseManualTime()
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->Arg(1)
    ->Arg(1'000)
    ->Arg(100'000)
    ->Arg(allGrids);

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "core/numberMask.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "sill/frmProgress.h"
#include "support/quietProgram.h"
#include "support/ratio.h"
#include "winnings/gameWin.h"
#include "winnings/literalCheck.h"
#include "winnings/rapport.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace boulix {
namespace {

using bench_support::literalVerifyGame;
using bench_support::measureRatio;

constexpr int historyDraws = 4858; // as many as the operator ever published
constexpr int playedGrids = 10'000;
constexpr int allGrids = 13'983'816;

/// Random numbers that bench/peers/verify_numpy.py makes, too.
class Chance {
  public:
    std::size_t below(std::size_t limit) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::size_t>(state_ >> 33U) % limit;
    }
    /// Seven different numbers of 1 to 49.
    std::array<std::int16_t, 7> sevenNumbers() {
        std::array<std::int16_t, 49> all{};
        std::iota(all.begin(), all.end(), std::int16_t{1});
        std::array<std::int16_t, 7> numbers{};
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            std::swap(all[i], all[i + below(all.size() - i)]);
            numbers[i] = all[i];
        }
        return numbers;
    }

  private:
    std::uint64_t state_ = 1;
};

/// A program with amounts for every rank, whose base and game are filled as asked.
class Workplace {
  public:
    Workplace() : program_(desktop_) {
        for (std::int16_t i = 0; i < rapport::size; ++i)
            gRapport->Value(i, static_cast<float>(i) + 0.1F);
    }

    void addDraws(int count) {
        for (int i = 0; i < count; ++i) {
            lotoComb comb;
            const auto numbers = chance_.sevenNumbers();
            for (int k = 1; k <= lotoComb::size; ++k)
                comb.num(k, numbers[static_cast<std::size_t>(k - 1)]);
            comb.compl_(numbers[6]);
            gDbCombs->Add(i, 1, comb, false, "");
        }
    }
    void addRandomGrids(int count) {
        for (int i = 0; i < count; ++i) {
            const auto numbers = chance_.sevenNumbers();
            gameComb::Numbers grid{};
            std::copy_n(numbers.begin(), grid.size(), grid.begin());
            std::sort(grid.begin(), grid.end());
            currentGame->Add(GridRef(gameComb(grid)));
        }
    }
    void addAllGrids() {
        gameComb::Numbers grid = {1, 2, 3, 4, 5, 6};
        for (int i = 0; i < allGrids; ++i) {
            currentGame->Add(GridRef(gameComb(grid)));
            advance(grid);
        }
    }

  private:
    /// To the next grid in order; the last one stays.
    static void advance(gameComb::Numbers &grid) {
        std::size_t at = grid.size();
        while (at > 0 && grid[at - 1] == static_cast<std::int16_t>(43 + at))
            --at;
        if (at == 0)
            return;
        ++grid[at - 1];
        for (; at < grid.size(); ++at)
            grid[at] = static_cast<std::int16_t>(grid[at - 1] + 1);
    }

    bench_support::QuietDesktop desktop_;
    bench_support::QuietProgram program_;
    Chance chance_;
};

gameResult verifyGame() {
    progressBar bar;
    std::vector<std::vector<gameWin>> wins;
    std::vector<std::int32_t> counts;
    return gDbCombs->VerifyGame(*currentGame, bar, wins, counts);
}

/// How many pairs of a grid and a draw are checked in a second.
benchmark::Counter pairs(double count) {
    return {count, benchmark::Counter::kIsIterationInvariantRate};
}

/// Ten thousand grids over the whole history, against the comparisons as they are defined. The
/// wins are given for verify_numpy.py, which must find the same.
void GameOverTheHistory(benchmark::State &state) {
    Workplace place;
    place.addDraws(historyDraws);
    place.addRandomGrids(playedGrids);
    measureRatio(
        state, 1.0 / 20, [] { benchmark::DoNotOptimize(verifyGame()); },
        [] { benchmark::DoNotOptimize(literalVerifyGame(*gDbCombs, *currentGame)); });
    state.counters["pairs"] = pairs(double{historyDraws} * playedGrids);
    const gameResult result = verifyGame();
    for (std::int16_t rank = 1; rank <= gameResult::ranks; ++rank)
        state.counters["nWin" + std::to_string(rank)] = result.nWin(rank);
}
BENCHMARK(GameOverTheHistory)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

/// Every grid there is against one draw. `goal` is meant against `reference`.
void allGridsAgainstOneDraw(benchmark::State &state, const std::function<void()> &reference) {
    measureRatio(
        state, 3, [] { benchmark::DoNotOptimize(currentGame->verify(gDbCombs->Item(1).comb())); },
        reference);
}

/// ... against a pass over the game that sums the masks of its grids.
void AllGridsAgainstSummingTheirMasks(benchmark::State &state) {
    Workplace place;
    place.addDraws(1);
    place.addAllGrids();
    allGridsAgainstOneDraw(state, [] {
        std::uint64_t sum = 0;
        for (const gameComb &grid : *currentGame)
            sum += maskOf(grid.numbers());
        benchmark::DoNotOptimize(sum);
    });
}
BENCHMARK(AllGridsAgainstSummingTheirMasks)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(9);

/// ... against a sum of masks that somebody had put into a row beforehand: 8 bytes a grid to read,
/// where a grid and its place in the game are 18.
void AllGridsAgainstSummingReadyMasks(benchmark::State &state) {
    Workplace place;
    place.addDraws(1);
    place.addAllGrids();
    std::vector<std::uint64_t> masks;
    masks.reserve(allGrids);
    for (const gameComb &grid : *currentGame)
        masks.push_back(maskOf(grid.numbers()));
    allGridsAgainstOneDraw(state, [&masks] {
        benchmark::DoNotOptimize(std::accumulate(masks.begin(), masks.end(), std::uint64_t{0}));
    });
}
BENCHMARK(AllGridsAgainstSummingReadyMasks)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(9);

/// Every grid there is over a hundred draws: what a pair costs in the largest game, the turning
/// over of the game included.
void AllGridsOverAHundredDraws(benchmark::State &state) {
    constexpr int draws = 100;
    Workplace place;
    place.addDraws(draws);
    place.addAllGrids();
    for (auto _ : state)
        state.SetIterationTime(
            bench_support::secondsOf([] { benchmark::DoNotOptimize(verifyGame()); }));
    state.counters["pairs"] = pairs(double{draws} * allGrids);
}
BENCHMARK(AllGridsOverAHundredDraws)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
} // namespace boulix

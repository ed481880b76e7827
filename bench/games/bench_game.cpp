// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Games of millions of grids: making, thinning, listing, saving and loading them.

#include "core/fileAccess.h"
#include "core/numberMask.h"
#include "core/platform.h"
#include "games/game.h"
#include "games/gameWorkplace.h"
#include "support/ratio.h"
#include "workbench/eliminatorPage.h"
#include "workbench/gamePage.h"

#include <bit>
#include <cstring>
#include <filesystem>
#include <new>

namespace boulix {
namespace {

using bench_support::GameWorkplace;
using bench_support::measureRatio;
using bench_support::secondsOf;

constexpr double allGrids = 13'983'816;

/// The plain loop over all grids of 49 numbers that only makes their codes. The compiler keeps
/// the part of a code that five numbers make, so that a code costs one addition.
void enumerateCodes() {
    const auto &cnk = modMaths::cnkTable;
    std::int64_t sum = 0;
    for (std::size_t a = 1; a <= 44; ++a)
        for (std::size_t b = a + 1; b <= 45; ++b)
            for (std::size_t c = b + 1; c <= 46; ++c)
                for (std::size_t d = c + 1; d <= 47; ++d)
                    for (std::size_t e = d + 1; e <= 48; ++e)
                        for (std::size_t f = e + 1; f <= 49; ++f) {
                            std::int32_t code = cnk[1][a] + cnk[2][b] + cnk[3][c] + cnk[4][d] +
                                                cnk[5][e] + cnk[6][f];
                            benchmark::DoNotOptimize(code);
                            sum += code;
                        }
    benchmark::DoNotOptimize(sum);
}

/// The same with a grid made for each code, as the shared routine wants it.
void enumerateRanks() {
    std::int64_t sum = 0;
    gameComb grid;
    for (std::int16_t a = 1; a <= 44; ++a)
        for (auto b = a; ++b <= 45;)
            for (auto c = b; ++c <= 46;)
                for (auto d = c; ++d <= 47;)
                    for (auto e = d; ++e <= 48;)
                        for (auto f = e; ++f <= 49;) {
                            grid = gameComb({a, b, c, d, e, f});
                            sum += modMaths::combRank(grid, 6);
                        }
    benchmark::DoNotOptimize(sum);
}

/// The desktop does nothing at all: what the event queue costs is not looked at here.
void manualGame(benchmark::State &state, double goal, void (*reference)()) {
    GameWorkplace place;
    const selector sel = place.firstNumbers(49);
    bench_support::QuietDesktop quiet;
    setDesktop(&quiet);
    const std::int64_t before = bench_support::memoryInUse();
    bench_support::forgetPeak();
    game made;
    const auto timeOf = [&made](const std::function<void()> &action) {
        made.clear(); // what is measured is how long it takes to make the game
        return bench_support::processorSecondsOf(action);
    };
    measureRatio(
        state, goal, [&] { made.ComputeManualGame(sel); }, reference, timeOf);
    state.counters["bytesPerGrid"] =
        static_cast<double>(bench_support::memoryPeak() - before) / allGrids;
}

void ManualGameAgainstEnumeratingCodes(benchmark::State &state) {
    manualGame(state, 5, enumerateCodes);
}
BENCHMARK(ManualGameAgainstEnumeratingCodes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

void ManualGameAgainstEnumeratingRanks(benchmark::State &state) {
    manualGame(state, 5, enumerateRanks);
}
BENCHMARK(ManualGameAgainstEnumeratingRanks)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

/// The memory that the game takes, fresh from the system and filled once: what no way of making
/// the game can do without.
void fillFreshMemory() {
    constexpr std::size_t bytes = std::size_t{13'983'816} * (sizeof(gameComb) + sizeof(GridRef));
    const auto alignment = std::align_val_t{largePage};
    void *memory = ::operator new(bytes, alignment);
    wantLargePages(memory, bytes);
    std::memset(memory, 1, bytes);
    benchmark::DoNotOptimize(memory);
    ::operator delete(memory, alignment);
}

void ManualGameAgainstFillingItsMemory(benchmark::State &state) {
    manualGame(state, 2, fillFreshMemory);
}
BENCHMARK(ManualGameAgainstFillingItsMemory)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

/// All grids computed on the page, listed there, added to the game and listed again: what all of
/// it costs a grid, and how long the window ever waits while the list is filled.
void ManualGameOnThePage(benchmark::State &state) {
    GameWorkplace place;
    eliminatorPage rules;
    gamePage page(rules);
    page.init();
    page.design.clickTab(gameDesign::manualTab);
    place.desktop.chosen = 49;
    page.design.clickButton(gameDesign::selectNumbers);
    const std::int64_t before = bench_support::memoryInUse();
    bench_support::forgetPeak();
    for (auto _ : state) {
        page.design.clickButton(gameDesign::computeGame);
        page.design.clickButton(gameDesign::addGame);
        state.SetIterationTime(secondsOf([&] { page.refill(); }));
    }
    benchmark::DoNotOptimize(page.lvwGame.text(13'983'815, 6));
    state.counters["bytesPerGrid"] =
        static_cast<double>(bench_support::memoryPeak() - before) / allGrids;
    state.counters["longestGap_ms"] = place.desktop.longestGapMilliseconds();
}
BENCHMARK(ManualGameOnThePage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

/// A million random grids against a hundred thousand: ten times the work.
void RandomGameOfAMillionAgainstOneOfATenth(benchmark::State &state) {
    GameWorkplace place;
    const selector sel = place.firstNumbers(49);
    const auto make = [&](std::int32_t count) {
        game grids;
        grids.ComputeRandomGame(count, sel);
    };
    measureRatio(
        state, 13, [&] { make(1'000'000); }, [&] { make(100'000); },
        bench_support::processorSecondsOf);
}
BENCHMARK(RandomGameOfAMillionAgainstOneOfATenth)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

/// A million random grids and all eight rules, each of which lets most grids pass. The desktop
/// does nothing at all: what the event queue costs is not looked at here.
class EliminationPlace {
  public:
    EliminationPlace() {
        made_.ComputeRandomGame(1'000'000, place_.firstNumbers(49));
        const std::int16_t values[] = {5, 5, 60, 240, 6, 6, 4, 0};
        for (int rule = 1; rule <= 8; ++rule) {
            gEliminators->Item(rule).status(eliminator::on);
            gEliminators->Item(rule).Value(values[rule - 1]);
        }
        gEliminators->Item(8).eliminNbr(13, eliminator::on);
        for (const gameComb &grid : made_)
            masks.push_back(maskOf(grid.numbers()));
        setDesktop(&desktop_);
    }
    /// A game that is made anew for each elimination, outside the time that is taken.
    game fresh() const { return made_; }
    const game &made() const { return made_; }
    std::vector<std::uint64_t> masks;

  private:
    bench_support::QuietDesktop desktop_;
    GameWorkplace place_;
    game made_;
};

constexpr int eliminations = 15;

void elimination(benchmark::State &state, EliminationPlace &place,
                 const std::function<void()> &reference) {
    std::vector<game> games(eliminations, place.fresh());
    std::size_t next = 0;
    measureRatio(
        state, 10, [&] { games[next++].EliminComb(); }, reference,
        bench_support::processorSecondsOf);
    state.counters["left"] = games[0].Count();
}

/// ... against a pass over their ready masks that counts the even numbers.
void EliminationAgainstAPassOverReadyMasks(benchmark::State &state) {
    EliminationPlace place;
    constexpr std::uint64_t even = 0x5555555555555555;
    elimination(state, place, [&place] {
        std::int64_t condemned = 0;
        for (const std::uint64_t mask : place.masks)
            condemned += std::popcount(mask & even) >= 5;
        benchmark::DoNotOptimize(condemned);
    });
}
BENCHMARK(EliminationAgainstAPassOverReadyMasks)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(eliminations);

/// ... against a pass over the game that makes the mask of each grid and counts its even numbers.
void EliminationAgainstAPassOverTheMasksOfTheGame(benchmark::State &state) {
    EliminationPlace place;
    constexpr std::uint64_t even = 0x5555555555555555;
    elimination(state, place, [&place] {
        std::int64_t condemned = 0;
        for (const gameComb &grid : place.made())
            condemned += std::popcount(maskOf(grid.numbers()) & even) >= 5;
        benchmark::DoNotOptimize(condemned);
    });
}
BENCHMARK(EliminationAgainstAPassOverTheMasksOfTheGame)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(eliminations);

constexpr std::int32_t savedGrids = 2'000'000;

/// Saving against writing as many bytes in large blocks.
void SaveAgainstWritingTheBytes(benchmark::State &state) {
    GameWorkplace place;
    game grids;
    for (std::int32_t i = 0; i < savedGrids; ++i)
        grids.Add();
    place.desktop.fileName = place.file("jeu.lst");
    const std::string block(std::size_t{1} << 20U, 'x');
    measureRatio(
        state, 1.5, [&] { grids.save(); },
        [&] {
            constexpr std::int64_t bytes = std::int64_t{savedGrids} * 128;
            FileWriter file(place.file("octets"), bytes);
            for (std::int64_t left = bytes; left > 0; left -= std::ssize(block))
                file.write(block);
            file.close();
        });
}
BENCHMARK(SaveAgainstWritingTheBytes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

/// Loading against reading the bytes of the file.
void LoadAgainstReadingTheBytes(benchmark::State &state) {
    GameWorkplace place;
    game grids;
    for (std::int32_t i = 0; i < savedGrids; ++i)
        grids.Add();
    place.desktop.fileName = place.file("jeu.lst");
    grids.save();
    measureRatio(
        state, 1.5,
        [&] {
            game loaded;
            loaded.load();
            benchmark::DoNotOptimize(loaded.Count());
        },
        [&] { benchmark::DoNotOptimize(readFile(place.desktop.fileName).size()); });
    state.counters["longestGap_ms"] = place.desktop.longestGapMilliseconds();
}
BENCHMARK(LoadAgainstReadingTheBytes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

} // namespace
} // namespace boulix

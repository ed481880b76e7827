// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How small the systems get: for each line of the table of records what is found in a minute of
// one core, beside the record and the iterative calculation.
//
//     bench_optimiser [SECONDS [SEED [nFixed nWin nCond nSelect]]]
//
// The time is that of the processor. With parameters only that line is measured.

#include "games/gameDef.h"
#include "games/gameWorkplace.h"
#include "games/systemOptimiser.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace boulix {
namespace {

constexpr std::int64_t slice = 4'000'000;

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

std::vector<gameComb> calculatedRows(const Guarantee &g) {
    gameDef def;
    def.compute(g.nFixed, g.nWin, g.nSelect);
    return systemRows(def);
}

/// Searches in `pieces` runs of equal length.
void measure(const Guarantee &g, double seconds, std::uint64_t seed, int pieces = 1) {
    const std::vector<gameComb> calculated = calculatedRows(g);
    const double begun = processorSeconds();
    std::vector<std::vector<gameComb>> systems;
    if (g.nCond > g.nWin)
        systems = carriedSystems(g);
    systems.push_back(calculated);
    SystemOptimiser search(g, systems, seed);
    double found = 0;
    double longest = 0;
    for (int piece = 1; piece <= pieces; ++piece)
        while (!search.finished() && processorSeconds() - begun < seconds * piece / pieces) {
            const std::int64_t before = search.size();
            const double start = processorSeconds();
            search.run(slice);
            longest = std::max(longest, processorSeconds() - start);
            if (search.size() < before)
                found = processorSeconds() - begun;
        }
    const bool passed = keepsGuarantee(search.rows(), g);
    const auto record = static_cast<double>(search.record().value_or(0));
    const auto size = static_cast<double>(search.size());
    std::printf("%6d %4d %5d %7d %8zu %8.0f %8.0f %+7.1f %% %+7.1f %% %8lld %7.1f s %6.0f ms  %s\n",
                g.nFixed, g.nWin, g.nCond, g.nSelect, calculated.size(), size, record,
                record > 0 ? (size / record - 1) * 100 : 0,
                (size / static_cast<double>(calculated.size()) - 1) * 100,
                static_cast<long long>(search.lowerBound()), found, longest * 1000,
                passed ? "checked" : "WRONG");
    std::fflush(stdout);
}

Guarantee guarantee(int nFixed, int nWin, int nCond, int nSelect) {
    return {static_cast<std::int16_t>(nFixed), static_cast<std::int16_t>(nWin),
            static_cast<std::int16_t>(nCond), static_cast<std::int16_t>(nSelect)};
}

void measureAll(double seconds, std::uint64_t seed) {
    for (const auto &[fixed, win] : {std::pair{0, 3}, {0, 4}, {0, 5}, {1, 4}, {1, 5}, {2, 5}})
        for (int points = 7; points <= 25; ++points)
            measure(guarantee(fixed, win, win, points + fixed), seconds, seed);
    std::puts("the largest");
    for (const Guarantee &g :
         {guarantee(0, 3, 3, 49), guarantee(0, 4, 4, 49), guarantee(0, 5, 5, 30)})
        measure(g, seconds, seed);
    std::puts("more drawn than guaranteed");
    for (const Guarantee &g :
         {guarantee(0, 5, 6, 10), guarantee(0, 4, 5, 12), guarantee(0, 5, 6, 12),
          guarantee(0, 3, 6, 17), guarantee(0, 3, 6, 27), guarantee(0, 3, 6, 49)})
        measure(g, seconds, seed);
    std::puts("half the time in one piece and in six");
    for (const int pieces : {1, 6})
        measure(guarantee(0, 4, 4, 20), seconds / 2, seed, pieces);
}

} // namespace
} // namespace boulix

int main(int count, char **arguments) {
    const auto argument = [&](int i, double otherwise) {
        return i < count ? std::atof(arguments[i]) : otherwise;
    };
    const boulix::bench_support::GameWorkplace place;
    const double seconds = argument(1, 60);
    const auto seed = static_cast<std::uint64_t>(argument(2, 1));
    std::printf("seed %llu, %.0f s of processor time each\n", static_cast<unsigned long long>(seed),
                seconds);
    std::puts("nFixed nWin nCond nSelect calculated found   record  to record to calc.    bound"
              "  found at  slice");
    const auto whole = [&](int i) { return static_cast<int>(argument(i, 0)); };
    if (count > 6)
        boulix::measure(boulix::guarantee(whole(3), whole(4), whole(5), whole(6)), seconds, seed);
    else
        boulix::measureAll(seconds, seed);
}

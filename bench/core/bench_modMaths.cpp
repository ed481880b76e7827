// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The translation between a combination and its rank, against the same written to the letter:
// binomials by multiplication, the number of a position found by counting up.

#include "core/modMaths.h"
#include "games/gameComb.h"
#include "support/ratio.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>
#include <vector>

namespace boulix {
namespace {

using bench_support::measureRatio;

constexpr std::int16_t k = 6;
constexpr int manyCombs = 20'000;

/// `n` over `positions` by multiplication, 0 where there are too few to choose from.
std::int32_t binomial(std::int16_t n, std::int16_t positions) {
    return n < positions ? 0 : modMaths::Cnk(n, positions);
}

std::int32_t literalRank(const gameComb &comb) {
    std::int32_t rank = 0;
    for (std::int16_t i = 1; i <= k; ++i)
        rank += binomial(comb.num(i), i);
    return rank;
}

gameComb literalFromRank(std::int32_t rank) {
    gameComb comb;
    for (std::int16_t p = k; p >= 2; --p) {
        std::int16_t c = p;
        while (c < 50 && binomial(c, p) <= rank)
            ++c;
        comb.num(p, static_cast<std::int16_t>(c - 1));
        rank -= binomial(static_cast<std::int16_t>(c - 1), p);
    }
    comb.num(1, static_cast<std::int16_t>(rank));
    return comb;
}

/// Combinations of six of the numbers 0 to 49, ascending, the same ones at each run.
std::vector<gameComb> someCombs() {
    std::mt19937 random(49);
    std::vector<std::int16_t> all(50);
    std::iota(all.begin(), all.end(), std::int16_t{0});
    std::vector<gameComb> combs(manyCombs);
    for (gameComb &comb : combs) {
        std::vector<std::int16_t> numbers;
        std::sample(all.begin(), all.end(), std::back_inserter(numbers), k, random);
        for (int i = 1; i <= k; ++i)
            comb.num(i, numbers[static_cast<std::size_t>(i - 1)]);
    }
    return combs;
}

/// Calls `function` with each of `values` and keeps the compiler from dropping the result.
template <class Value, class Function>
void callWithAll(const std::vector<Value> &values, Function function) {
    for (const Value &value : values)
        benchmark::DoNotOptimize(function(value));
}

void RankOfACombination(benchmark::State &state) {
    modMaths::precomputeCnk();
    const std::vector<gameComb> combs = someCombs();
    const auto byTable = [](const gameComb &comb) { return modMaths::combRank(comb, k); };
    measureRatio(
        state, 0.1, [&] { callWithAll(combs, byTable); }, [&] { callWithAll(combs, literalRank); });
}

void CombinationOfARank(benchmark::State &state) {
    modMaths::precomputeCnk();
    std::vector<std::int32_t> ranks;
    for (const gameComb &comb : someCombs())
        ranks.push_back(modMaths::combRank(comb, k));
    const auto byTable = [](std::int32_t rank) { return modMaths::combFromRank(rank, k); };
    measureRatio(
        state, 0.1, [&] { callWithAll(ranks, byTable); },
        [&] { callWithAll(ranks, literalFromRank); });
}

BENCHMARK(RankOfACombination)->UseManualTime()->Iterations(15)->Unit(benchmark::kMicrosecond);
BENCHMARK(CombinationOfARank)->UseManualTime()->Iterations(15)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "winnings/bestRanks.h"
#include "winnings/winsAbove.h"

#include <array>
#include <cstdint>
#include <functional>

namespace boulix {
class game;
} // namespace boulix

namespace boulix::bench_support {

/// A draw and its complementary number, and what a game does in it: `best` is the rank of the best
/// grid, 0 for none, `wins` the grids that win at each rank, 1 to 11.
struct PlainCase {
    std::array<int, 6> draw;
    int complementary;
    int best;
    std::array<std::int64_t, 12> wins;
};

/// What a game does in one case, number by number and grid by grid.
PlainCase plainCase(const game &grids, const std::array<int, 6> &draw, int complementary);

/// Hands all cases of a lottery of the numbers 1 to `numbers` to `use`.
void forEachPlainCase(const game &grids, int numbers,
                      const std::function<void(const PlainCase &)> &use);

/// What all grids of a case win together.
std::int64_t plainWin(const PlainCase &played, const RankAmounts &prizes);

} // namespace boulix::bench_support

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"

#include <array>
#include <cstdint>

namespace boulix {

class lotoComb;

/// How many grids of a game win at each rank in one draw, index 1 to 11.
using RankCounts = std::array<std::int32_t, 12>;

/// Checks grids against one draw by looking up what each of their numbers is worth: a number of
/// the draw counts 1, its complementary number 16, any other nothing. The sum over a grid then
/// says all: how many of its numbers match, and whether the complementary one is among them. It
/// does so for every grid and every draw, sorted or not, with repeated numbers or zeros.
///
/// In a game that was made in order, neighbours share their first four numbers as a rule: what
/// those are worth is looked up only where they change.
class drawWeights {
  public:
    explicit drawWeights(const lotoComb &draw);

    /// Takes `count` grids that lie one behind the other into the count.
    void count(const gameComb *grids, std::size_t count);
    /// The grids counted so far that won. A grid of six matches with the complementary number,
    /// which no draw of seven different numbers can have, fails with
    /// `Failure::subscriptOutOfRange`.
    RankCounts wins() const;

  private:
    std::size_t worthOfTwo(const std::int16_t *numbers) const;

    static constexpr std::uint16_t complementary = 16;
    static constexpr std::size_t worths = (complementary + 1) * gameComb::size + 1;
    // Neighbours in a game tend to be worth the same: with counters by turns, one grid need not
    // wait for the count of the other.
    static constexpr std::size_t turns = 8;

    std::array<std::int32_t, worths * turns> grids_{}; // how many have each worth, by turns
    // By the bits of a 16-bit number: `turns` times its worth, the way to the counters.
    std::array<std::uint16_t, 65536> weights_{};
};

} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "winnings/bestRanks.h"
#include "winnings/exactAmounts.h"
#include "winnings/guarantees.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace boulix {

class frmProgress;
class game;
class rapport;

/// The chances of a game over all draws with each of their complementary numbers.
struct GameChances {
    std::int64_t grids = 0;
    int numbers = 0;              ///< how many different ones the grids hold
    std::uint64_t cases = 0;      ///< all of them, equally likely
    RankCases best{};             ///< by the rank of the best grid
    RankCases oneGrid{};          ///< in which one grid wins at exactly this rank
    std::uint64_t aboveStake = 0; ///< in which the game wins more than it costs
    ExactAmounts amounts;
    std::vector<GuaranteeRow> guarantees; ///< none for a game on too many numbers

    /// The cases in which the best grid wins at `rank` or a higher one.
    std::uint64_t atLeast(int rank) const;
    /// How many grids win at exactly `rank` in a draw, on average, and what they win together.
    double meanGrids(int rank) const;
    double meanWin(int rank) const;
    double stake() const;
    /// What the game wins in a draw, on average.
    double meanReturn() const;
    /// That as a part of the stake; nothing for a game that costs nothing.
    std::optional<double> returnPart() const;
};

/// Why the chances of a game cannot be told, as a sentence for the user; empty where they can.
std::string chancesRefusal(const game &grids, const rapport &prizes, float price);

/// The chances of a game that is not refused. The bar of `progress` runs, and the event queue;
/// nothing when the user cancels.
std::optional<GameChances> chancesOf(const game &grids, const rapport &prizes, float price,
                                     frmProgress &progress);

} // namespace boulix

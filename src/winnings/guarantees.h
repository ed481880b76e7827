// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

namespace boulix {

class game;

/// What a game guarantees when so many of its numbers are drawn, whichever they are.
struct GuaranteeRow {
    int drawn;           ///< how many of the game's numbers are drawn, 1 to 6
    int least;           ///< what the best grid matches of them, in the worst case
    int most;            ///< and in the best one
    std::uint64_t sum;   ///< what the best grid matches, summed over all cases
    std::uint64_t cases; ///< in how many ways the numbers can be drawn
};

/// The most numbers that a game may hold for its guarantees to be told.
inline constexpr int mostGuaranteeNumbers = 20;

/// How many different numbers of 1 to 49 the grids hold together.
int numbersInPlay(const game &grids);

/// The guarantees for one to six drawn numbers; nothing for a game on more than
/// `mostGuaranteeNumbers` different numbers, or without grids.
std::vector<GuaranteeRow> guaranteesOf(const game &grids);

} // namespace boulix

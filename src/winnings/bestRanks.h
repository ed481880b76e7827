// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "winnings/numberSets.h"

#include <array>
#include <cstdint>
#include <optional>

namespace boulix {

/// How many cases there are of each kind, by rank 1 to 11; at 0 those without a win. A case is a
/// draw with one of its complementary numbers; all cases are equally likely.
using RankCases = std::array<std::uint64_t, 12>;

/// All cases, by the rank of the best grid of the game in them. Nothing when the watch has stopped
/// it.
std::optional<RankCases> casesByBestRank(const GridSets &game, CountWatch &watch);

/// All cases for a lottery of the numbers 1 to `numbers`, 7 to 49: 601,304,088 for 49.
std::uint64_t allCases(int numbers);

/// How many of them let one grid win at exactly `rank`, 1 to 11, whichever grid it is.
std::uint64_t casesOfOneGrid(int numbers, int rank);

} // namespace boulix

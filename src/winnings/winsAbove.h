// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "winnings/numberSets.h"

#include <array>
#include <cstdint>
#include <optional>

namespace boulix {

/// What one winning grid is paid at each rank, 1 to 11, in the smallest unit that all amounts of a
/// count are whole in; index 0 is not used.
using RankAmounts = std::array<std::int64_t, 12>;

/// In how many cases (a draw with one of its complementary numbers) the game wins more than
/// `amount` in all. The largest amount times the grids must stay below 2^62, and so must `amount`.
/// Nothing when the watch has stopped it.
std::optional<std::uint64_t> casesAbove(const GridSets &game, const RankAmounts &prizes,
                                        std::int64_t amount, CountWatch &watch);

} // namespace boulix

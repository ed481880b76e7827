// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "winnings/winsAbove.h"

#include <cstdint>
#include <optional>

namespace boulix {

class rapport;

/// The prizes and the price of a grid as whole numbers of one unit: 1 / `unit` of the user's
/// money. An amount is taken for what the user reads, the shortest decimal of its single float:
/// 0.6 is six tenths, not the binary fraction nearest to it.
struct ExactAmounts {
    RankAmounts prizes{};
    std::int64_t price = 0;
    std::int64_t unit = 1; ///< a power of ten
};

/// The amounts for a game of `grids` grids; nothing where one is no number, or where they are so
/// large, or have so many decimals, that a sum over the grids could go beyond 2^62.
std::optional<ExactAmounts> exactAmounts(const rapport &prizes, float price, std::int64_t grids);

} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {

class gameResult;

/// What a game has cost and won over a number of draws, in the money unit of the settings.
struct Balance {
    double won = 0;
    double stake = 0;
    double rest() const { return won - stake; } ///< below 0: lost
};

/// The money of all ranks of `result`, against `grids` grids played in each of `draws` draws at
/// `price` each.
Balance balanceOf(const gameResult &result, std::int64_t grids, std::int64_t draws, float price);

} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "winnings/gameResult.h"

namespace boulix {
class dbCombs;
class game;
class lotoComb;
} // namespace boulix

namespace boulix::bench_support {

/// The check of a game as it is defined: number by number, grid by grid, draw by draw. The tests
/// compare with its results, the measurements with its time.
gameResult literalVerify(const game &grids, const lotoComb &draw);
gameResult literalVerifyGame(const dbCombs &draws, const game &grids);

} // namespace boulix::bench_support

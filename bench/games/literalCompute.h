// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"

#include <cstdint>
#include <vector>

namespace boulix::literal {

/// The rows of a computed system, found in the most literal way: all grids and all p-uplets in
/// lists of codes, and for each uncovered p-uplet a walk over all grids, each of them taken apart
/// anew. It is what the quick search is compared with, in rows by the tests and in time by the
/// measurements. Needs `precomputeCnk` and `modGame::init`; nFixed 0 to 5, nWin to 6.
std::vector<gameComb> compute(std::int16_t nFixed, std::int16_t nWin, std::int16_t nSelect);

} // namespace boulix::literal

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"
#include "winnings/drawWeights.h"

#include <cstdint>
#include <vector>

namespace boulix {

class game;
class lotoComb;

/// A game turned over for being checked against many draws: in place of six numbers for each
/// grid, one column of bits for each number, with a bit for each grid that holds it.
///
/// Six columns are all that matters for a draw. Added up bit by bit they give the matches of 64
/// grids at a time, so that a check costs less than one instruction per grid. The columns take
/// 6.25 bytes a grid. They are a copy: what happens to the game meanwhile does not show.
///
/// A grid whose numbers are not six different ones of 1 to 49 does not fit into columns and is
/// kept apart as it is.
class gridColumns {
  public:
    explicit gridColumns(const game &grids);

    /// The winning grids of the game in `draw`, rank by rank. Fails as `drawWeights::wins` does.
    RankCounts wins(const lotoComb &draw) const;

  private:
    const std::uint64_t *column(std::int16_t number) const;
    RankCounts winsInColumns(const lotoComb &draw) const;

    std::size_t length_ = 0;          // words of a column
    std::vector<std::uint64_t> bits_; // column 0, which stays empty, then those of 1 to 49
    std::vector<gameComb> apart_;
};

} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "sill/frmProgress.h"
#include "support/boulixTest.h"
#include "support/lottery.h"
#include "winnings/gameResult.h"
#include "winnings/gameWin.h"
#include "winnings/rapport.h"

#include <array>
#include <vector>

namespace boulix::testing_support {

/// What was won, rank by rank, index 0 for rank 1.
inline std::array<int, 11> winsOf(const gameResult &result) {
    std::array<int, 11> wins{};
    for (std::int16_t rank = 1; rank <= 11; ++rank)
        wins[static_cast<std::size_t>(rank - 1)] = result.nWin(rank);
    return wins;
}
inline std::array<float, 11> pricesOf(const gameResult &result) {
    std::array<float, 11> prices{};
    for (std::int16_t rank = 1; rank <= 11; ++rank)
        prices[static_cast<std::size_t>(rank - 1)] = result.price(rank);
    return prices;
}
/// One win at `rank`, nothing else.
inline std::array<int, 11> oneWinAt(int rank) {
    std::array<int, 11> wins{};
    wins[static_cast<std::size_t>(rank - 1)] = 1;
    return wins;
}

/// A game, a prize table of 1, 2, 3 ... 11, a bar, and the tables of wins.
class CheckTest : public BoulixTest {
  protected:
    CheckTest() {
        for (std::int16_t i = 0; i < rapport::size; ++i)
            gRapport->Value(i, static_cast<float>(i + 1));
    }
    void addGrid(const gameComb::Numbers &numbers) { grids.Add(GridRef(gameComb(numbers))); }
    void addRandomGrids(int count, std::mt19937 &random, std::int16_t last = 49) {
        for (int i = 0; i < count; ++i) {
            const SevenNumbers numbers = randomDraw(random, last);
            addGrid({numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]});
        }
    }
    gameResult verifyGame() { return gDbCombs->VerifyGame(grids, bar, wins, winsCount); }

    game grids;
    progressBar bar;
    std::vector<std::vector<gameWin>> wins;
    std::vector<std::int32_t> winsCount;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::CheckTest;
using testing_support::oneWinAt;
using testing_support::pricesOf;
using testing_support::winsOf;
} // namespace boulix

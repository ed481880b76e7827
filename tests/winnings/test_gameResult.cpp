// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/gameResult.h"

#include "support/boulixTest.h"
#include "winnings/gameWin.h"

#include <gtest/gtest.h>
#include <vector>

namespace boulix {
namespace {

TEST(GameResult, StartsWithNothingWonAtAnyRank) {
    const gameResult result;
    for (std::int16_t rank = 1; rank <= 11; ++rank) {
        EXPECT_EQ(result.nWin(rank), 0);
        EXPECT_EQ(result.price(rank), 0.0F);
    }
}

TEST(GameResult, KeepsCountAndMoneyOfEachRankApart) {
    gameResult result;
    for (std::int16_t rank = 1; rank <= 11; ++rank) {
        result.nWin(rank, rank * 1000);
        result.price(rank, static_cast<float>(rank) / 8);
    }
    for (std::int16_t rank = 1; rank <= 11; ++rank) {
        EXPECT_EQ(result.nWin(rank), rank * 1000);
        EXPECT_EQ(result.price(rank), static_cast<float>(rank) / 8);
    }
}

TEST(GameResult, FailsForARankOutsideOneToEleven) {
    gameResult result;
    for (const std::int16_t rank : std::vector<std::int16_t>{-1, 0, 12, 32767}) {
        EXPECT_EQ(failureNumber([&] { result.nWin(rank); }), 9);
        EXPECT_EQ(failureNumber([&] { result.nWin(rank, 1); }), 9);
        EXPECT_EQ(failureNumber([&] { result.price(rank); }), 9);
        EXPECT_EQ(failureNumber([&] { result.price(rank, 1); }), 9);
    }
}

TEST(GameWin, HoldsADrawAndItsWinningGrids) {
    gameWin win(4858, 3);
    EXPECT_EQ(win.idbcomb(), 4858);
    EXPECT_EQ(win.nWin(), 3);
    win.idbcomb(1);
    win.nWin(13983816);
    EXPECT_EQ(win.idbcomb(), 1);
    EXPECT_EQ(win.nWin(), 13983816);
}

} // namespace
} // namespace boulix

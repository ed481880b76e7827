// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/balance.h"

#include "winnings/gameResult.h"

#include <gtest/gtest.h>

#include <random>

namespace boulix {
namespace {

TEST(BalanceOfAGame, IsTheSumOfAllRanksAgainstGridsTimesDrawsTimesPrice) {
    gameResult result;
    result.price(1, 0.5F);
    result.price(5, 10);
    result.price(11, 1000);
    const Balance balance = balanceOf(result, 7, 600, 2);
    EXPECT_EQ(balance.won, 1010.5);
    EXPECT_EQ(balance.stake, 8400);
    EXPECT_EQ(balance.rest(), -7389.5);
}

TEST(BalanceOfAGame, TakesThePriceAsItWasWritten) {
    EXPECT_EQ(balanceOf({}, 1'000'000, 5000, 0.6F).stake, 3e9) << "not 3000000119.2";
}

TEST(BalanceOfAGame, AGameWithoutGridsOrDrawsCostsNothing) {
    EXPECT_EQ(balanceOf({}, 0, 600, 2).stake, 0);
    EXPECT_EQ(balanceOf({}, 600, 0, 2).stake, 0);
    EXPECT_EQ(balanceOf({}, 600, 600, 0).rest(), 0);
}

TEST(BalanceOfAGame, AddsUpWhateverTheRanksWon) {
    std::mt19937 random{5};
    std::uniform_int_distribution<int> euros(0, 10000);
    for (int round = 0; round < 200; ++round) {
        gameResult result;
        std::int64_t plain = 0;
        for (std::int16_t rank = 1; rank <= gameResult::ranks; ++rank) {
            const int won = euros(random);
            plain += won;
            result.price(rank, static_cast<float>(won));
        }
        const Balance balance = balanceOf(result, round, 10, 3);
        EXPECT_EQ(balance.won, static_cast<double>(plain));
        EXPECT_EQ(balance.rest(), static_cast<double>(plain - std::int64_t{round} * 30));
    }
}

} // namespace
} // namespace boulix

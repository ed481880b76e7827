// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checkTest.h"
#include "winnings/exactAmounts.h"

#include <gtest/gtest.h>
#include <limits>

namespace boulix {
namespace {

class ExactAmountsTest : public BoulixTest {
  protected:
    rapport prizes;
};

TEST_F(ExactAmountsTest, AreTheDecimalsThatTheUserReads) {
    prizes.Value(0, 0.1F);
    prizes.Value(4, 2.35F);
    prizes.Value(9, -7);
    prizes.Value(10, 520000);
    const auto amounts = exactAmounts(prizes, 0.6F, 1000);
    ASSERT_TRUE(amounts);
    EXPECT_EQ(amounts->unit, 100);
    EXPECT_EQ(amounts->price, 60);
    EXPECT_EQ(amounts->prizes, (RankAmounts{0, 10, 0, 0, 0, 235, 0, 0, 0, 0, -700, 52'000'000}));
}

TEST_F(ExactAmountsTest, WholeAmountsNeedNoSmallerUnit) {
    prizes.Value(2, 3);
    const auto amounts = exactAmounts(prizes, 1, 1);
    ASSERT_TRUE(amounts);
    EXPECT_EQ(amounts->unit, 1);
    EXPECT_EQ(amounts->price, 1);
    EXPECT_EQ(amounts->prizes[3], 3);
}

TEST_F(ExactAmountsTest, WhatCannotBeAddedExactlyIsRefused) {
    const float infinite = std::numeric_limits<float>::infinity();
    for (const float amount : {infinite, -infinite, std::numeric_limits<float>::quiet_NaN(), 1e30F,
                               1e-30F, std::numeric_limits<float>::denorm_min()}) {
        prizes.Value(3, amount);
        EXPECT_FALSE(exactAmounts(prizes, 1, 1)) << amount;
    }
    prizes.Value(3, 0);
    EXPECT_FALSE(exactAmounts(prizes, infinite, 1));
}

TEST_F(ExactAmountsTest, TheMoreGridsTheSmallerTheAmountsAllowed) {
    prizes.Value(3, 1'000'000'000);
    EXPECT_TRUE(exactAmounts(prizes, 0.25F, 13'983'816));
    EXPECT_TRUE(exactAmounts(prizes, 0.0625F, 400'000));
    EXPECT_FALSE(exactAmounts(prizes, 0.0625F, 13'983'816)) << "ten to the 13 each, ten to the 7";
    prizes.Value(3, 1e18F);
    EXPECT_TRUE(exactAmounts(prizes, 1, 4));
    EXPECT_FALSE(exactAmounts(prizes, 1, 5));
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A game checked against one draw.

#include "checkTest.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using Wins = std::array<int, 11>;

class Verify : public CheckTest {
  protected:
    const lotoComb draw = lotoCombOf({1, 2, 3, 4, 5, 6, 7});

    Wins winsOfGrid(const gameComb::Numbers &numbers) { return winsOfGrid(numbers, draw); }
    Wins winsOfGrid(const gameComb::Numbers &numbers, const lotoComb &against) {
        grids.clear();
        addGrid(numbers);
        return winsOf(grids.verify(against));
    }
};

TEST_F(Verify, EachCountOfMatchesWithAndWithoutTheComplementaryHasItsRank) {
    EXPECT_EQ(winsOfGrid({1, 11, 12, 13, 14, 15}), oneWinAt(1));
    EXPECT_EQ(winsOfGrid({1, 7, 12, 13, 14, 15}), oneWinAt(2));
    EXPECT_EQ(winsOfGrid({1, 2, 12, 13, 14, 15}), oneWinAt(3));
    EXPECT_EQ(winsOfGrid({1, 2, 7, 13, 14, 15}), oneWinAt(4));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 13, 14, 15}), oneWinAt(5));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 7, 14, 15}), oneWinAt(6));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 4, 14, 15}), oneWinAt(7));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 4, 7, 15}), oneWinAt(8));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 4, 5, 15}), oneWinAt(9));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 4, 5, 7}), oneWinAt(10));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 4, 5, 6}), oneWinAt(11));
}

TEST_F(Verify, AGridOfThreeMatchesCountsAtRankFiveOrWithTheComplementaryAtRankSix) {
    EXPECT_EQ(winsOfGrid({1, 2, 3, 41, 42, 43}), oneWinAt(5));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 41, 42, 7}), oneWinAt(6));
}

TEST_F(Verify, AGridWithOnlyTheComplementaryWinsNothing) {
    EXPECT_EQ(winsOfGrid({7, 11, 12, 13, 14, 15}), Wins{});
}

TEST_F(Verify, AGridWithoutAnyMatchWinsNothing) {
    EXPECT_EQ(winsOfGrid({10, 11, 12, 13, 14, 15}), Wins{});
}

TEST_F(Verify, TheOrderOfTheNumbersIsOfNoMatter) {
    EXPECT_EQ(winsOfGrid({49, 3, 48, 1, 47, 2}), oneWinAt(5));
    EXPECT_EQ(winsOfGrid({1, 2, 3, 47, 48, 49}, lotoCombOf({30, 3, 20, 1, 10, 2, 49})),
              oneWinAt(6));
}

TEST_F(Verify, ARepeatedNumberOfAGridMatchesEachTime) {
    EXPECT_EQ(winsOfGrid({1, 1, 1, 11, 12, 13}), oneWinAt(5));
    EXPECT_EQ(winsOfGrid({7, 7, 7, 7, 7, 1}), oneWinAt(2)); // the complementary counts once
}

TEST_F(Verify, ARepeatedNumberOfADrawMatchesOnce) {
    EXPECT_EQ(winsOfGrid({1, 11, 12, 13, 14, 15}, lotoCombOf({1, 1, 1, 1, 1, 1, 40})), oneWinAt(1));
}

TEST_F(Verify, ZerosAndOtherNumbersAreComparedLikeAnyOther) {
    EXPECT_EQ(winsOfGrid({0, 0, 11, 12, 13, 14}, lotoCombOf({0, 1, 2, 3, 4, 5, 6})), oneWinAt(3));
    EXPECT_EQ(winsOfGrid({0, 1, 11, 12, 13, 14}, lotoCombOf({1, 2, 3, 4, 5, 6, 0})), oneWinAt(2));
    EXPECT_EQ(
        winsOfGrid({-5, 50, 32767, -32768, 1, 2}, lotoCombOf({-32768, 32767, 50, -5, 40, 41, 42})),
        oneWinAt(7));
    EXPECT_EQ(winsOfGrid({65, 2, 3, 11, 12, 13}, draw), oneWinAt(3)); // 65 is not 1
}

TEST_F(Verify, SixMatchesWithTheComplementaryFail) {
    const lotoComb twice = lotoCombOf({1, 2, 3, 4, 5, 6, 6});
    addGrid({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(failureNumber([&] { grids.verify(twice); }), 9);
    grids.clear();
    addGrid({1, 1, 1, 1, 1, 7}); // five matches and the complementary: no failure yet
    EXPECT_EQ(winsOf(grids.verify(draw)), oneWinAt(10));
    addGrid({6, 6, 6, 6, 6, 6});
    EXPECT_EQ(failureNumber([&] { grids.verify(twice); }), 9);
}

TEST_F(Verify, AnEmptyGameWinsNothing) {
    const gameResult result = grids.verify(draw);
    EXPECT_EQ(winsOf(result), Wins{});
    EXPECT_EQ(pricesOf(result), (std::array<float, 11>{}));
}

TEST_F(Verify, TheMoneyIsTheAmountTimesTheWins) {
    for (int i = 0; i < 3; ++i)
        addGrid({1, 2, 3, 13, 14, 15});
    addGrid({1, 2, 3, 4, 5, 6});
    const gameResult result = grids.verify(draw);
    EXPECT_EQ(pricesOf(result), (std::array<float, 11>{0, 0, 0, 0, 15, 0, 0, 0, 0, 0, 11}));
}

TEST_F(Verify, AnAmountOfZeroStillCountsTheWins) {
    gRapport->Value(4, 0);
    addGrid({1, 2, 3, 13, 14, 15});
    const gameResult result = grids.verify(draw);
    EXPECT_EQ(winsOf(result), oneWinAt(5));
    EXPECT_EQ(result.price(5), 0.0F);
}

TEST_F(Verify, TheMoneyOfARankIsRoundedToSinglePrecision) {
    gRapport->Value(0, 0.1F);
    for (int i = 0; i < 3; ++i)
        addGrid({1, 12, 13, 14, 15, 16});
    EXPECT_EQ(grids.verify(draw).price(1), static_cast<float>(double{0.1F} * 3));
}

TEST_F(Verify, MoneyBeyondSinglePrecisionIsAnOverflow) {
    gRapport->Value(0, 3e38F);
    addGrid({1, 12, 13, 14, 15, 16});
    EXPECT_EQ(grids.verify(draw).price(1), 3e38F);
    addGrid({2, 12, 13, 14, 15, 16});
    EXPECT_EQ(failureNumber([&] { grids.verify(draw); }), 6);
}

TEST_F(Verify, NeitherBarNorEventsAreTouched) {
    addGrid({1, 2, 3, 13, 14, 15});
    grids.verify(draw);
    EXPECT_EQ(desktop.eventTurns, 0);
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A game checked against the whole base and against a list of draws.

#include "checkTest.h"

#include <gtest/gtest.h>
#include <utility>

namespace boulix {
namespace {

class VerifyGame : public CheckTest {
  protected:
    /// The wins of a rank as pairs of draw and count.
    std::vector<std::pair<int, int>> winsAt(int rank) const {
        std::vector<std::pair<int, int>> pairs;
        const auto &row = wins.at(static_cast<std::size_t>(rank));
        for (std::int32_t i = 1; i <= winsCount.at(static_cast<std::size_t>(rank)); ++i) {
            const gameWin &win = row.at(static_cast<std::size_t>(i));
            pairs.emplace_back(win.idbcomb(), win.nWin());
        }
        return pairs;
    }
    using Pairs = std::vector<std::pair<int, int>>;
};

TEST_F(VerifyGame, SumsTheDrawsAndListsTheWinningOnesRankByRank) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addDraw({31, 32, 33, 34, 35, 36, 37});
    addDraw({1, 2, 3, 44, 45, 46, 47});
    addGrid({1, 2, 3, 11, 12, 13});
    const gameResult total = verifyGame();
    EXPECT_EQ(winsOf(total), (std::array<int, 11>{0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(total.price(5), 10.0F);
    EXPECT_EQ(winsAt(5), (Pairs{{1, 1}, {3, 1}}));
    for (const int rank : {1, 2, 3, 4, 6, 7, 8, 9, 10, 11})
        EXPECT_EQ(winsAt(rank), Pairs{});
}

TEST_F(VerifyGame, TwoGridsThatWinAtOneRankInOneDrawMakeOneLine) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 11, 12, 13});
    addGrid({4, 5, 6, 21, 22, 23});
    verifyGame();
    EXPECT_EQ(winsAt(5), (Pairs{{1, 2}}));
}

TEST_F(VerifyGame, GridsOfTwoRanksInOneDrawMakeALineAtEach) {
    addDraw({41, 42, 43, 44, 45, 46, 47});
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 11, 12, 13});
    addGrid({1, 2, 3, 7, 12, 13});
    verifyGame();
    EXPECT_EQ(winsAt(5), (Pairs{{2, 1}}));
    EXPECT_EQ(winsAt(6), (Pairs{{2, 1}}));
}

TEST_F(VerifyGame, AnEmptyGameWinsNothingAndHasNoLines) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    const gameResult total = verifyGame();
    EXPECT_EQ(winsOf(total), (std::array<int, 11>{}));
    EXPECT_EQ(pricesOf(total), (std::array<float, 11>{}));
    for (int rank = 1; rank <= 11; ++rank)
        EXPECT_EQ(winsAt(rank), Pairs{});
}

TEST_F(VerifyGame, AnAmountOfZeroCountsTheWinsAndTheirDates) {
    gRapport->Value(4, 0);
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 11, 12, 13});
    const gameResult total = verifyGame();
    EXPECT_EQ(total.nWin(5), 1);
    EXPECT_EQ(total.price(5), 0.0F);
    EXPECT_EQ(winsAt(5), (Pairs{{1, 1}}));
}

TEST_F(VerifyGame, OnAnEmptyBaseGivesZerosAndLeavesTheBarAlone) {
    addGrid({1, 2, 3, 11, 12, 13});
    bar.min = 5;
    bar.max = 50;
    bar.value = 20;
    EXPECT_EQ(winsOf(verifyGame()), (std::array<int, 11>{}));
    EXPECT_EQ(bar.min, 5);
    EXPECT_EQ(bar.max, 50);
    EXPECT_EQ(bar.value, 20);
    for (int rank = 1; rank <= 11; ++rank)
        EXPECT_EQ(winsAt(rank), Pairs{});
}

TEST_F(VerifyGame, TheBarMovesEverySixteenDrawsAndEndsAtItsLowestValue) {
    std::mt19937 random(2);
    addRandomDraws(50, random);
    addRandomGrids(5, random);
    std::vector<std::int64_t> seen;
    desktop.onEvents = [&] {
        EXPECT_EQ(bar.min, 1);
        EXPECT_EQ(bar.max, 50);
        seen.push_back(bar.value);
    };
    verifyGame();
    EXPECT_EQ(seen, (std::vector<std::int64_t>{16, 32, 48}));
    EXPECT_EQ(bar.value, 1);
}

TEST_F(VerifyGame, EachRunBeginsTheTablesAnew) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 11, 12, 13});
    verifyGame();
    verifyGame();
    EXPECT_EQ(winsAt(5), (Pairs{{1, 1}}));
    grids.clear();
    verifyGame();
    EXPECT_EQ(winsAt(5), Pairs{});
}

TEST_F(VerifyGame, MoneyDriftsAsItIsRoundedAfterEachDraw) {
    gRapport->Value(4, 0.1F);
    for (int i = 0; i < 1000; ++i)
        addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 11, 12, 13});
    EXPECT_EQ(verifyGame().price(5), 99.99905F);
}

TEST_F(VerifyGame, SixMatchesWithTheComplementaryFailAndTheTablesStay) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 4, 5, 6});
    verifyGame();
    addDraw({1, 2, 3, 4, 5, 6, 6});
    EXPECT_EQ(failureNumber([&] { verifyGame(); }), 9);
    EXPECT_EQ(winsAt(11), (Pairs{{1, 1}}));
}

// The counts are 32 bits wide: the game of all grids passes them after some 420 draws.
TEST_F(VerifyGame, MoreWinsThanTheirWidthHoldsAreAnOverflowAndTheTablesStay) {
    const GridRef winner(gameComb({1, 12, 13, 14, 15, 16}));
    grids.Add(winner);
    addDraw({1, 2, 3, 4, 5, 6, 7});
    verifyGame();
    while (grids.Count() < 65538)
        grids.Add(winner);
    while (gDbCombs->Count() < 32768)
        addDraw({1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(failureNumber([&] { verifyGame(); }), 6);
    EXPECT_EQ(winsAt(1), (Pairs{{1, 1}}));
}

TEST_F(VerifyGame, ChecksTheGameAndTheBaseAsTheyWereAtItsStart) {
    for (int i = 0; i < 40; ++i)
        addDraw({1, 2, 3, 4, 5, 6, 7});
    addGrid({1, 2, 3, 11, 12, 13});
    desktop.onEvents = [&] {
        grids.clear();
        gDbCombs->clear();
    };
    EXPECT_EQ(verifyGame().nWin(5), 40);
    EXPECT_EQ(winsAt(5).size(), 40U);
}

class VerifyCombList : public CheckTest {
  protected:
    std::vector<lotoComb> draws = {
        lotoCombOf({1, 2, 3, 4, 5, 6, 7}),
        lotoCombOf({31, 32, 33, 34, 35, 36, 37}),
        lotoCombOf({1, 2, 3, 44, 45, 46, 11}),
    };
};

TEST_F(VerifyCombList, SumsTheFirstDrawsOfTheList) {
    addGrid({1, 2, 3, 11, 12, 13});
    EXPECT_EQ(winsOf(grids.verifyCombList(draws, 2, bar)), oneWinAt(5));
    const gameResult total = grids.verifyCombList(draws, 3, bar);
    EXPECT_EQ(winsOf(total), (std::array<int, 11>{0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(total.price(5), 5.0F);
    EXPECT_EQ(total.price(6), 6.0F);
}

TEST_F(VerifyCombList, OfASingleDrawGivesWhatThatDrawGives) {
    addGrid({1, 2, 3, 13, 14, 15});
    const gameResult total = grids.verifyCombList({lotoCombOf({1, 2, 3, 4, 5, 6, 7})}, 1, bar);
    EXPECT_EQ(winsOf(total), oneWinAt(5));
    EXPECT_EQ(total.price(5), 5.0F);
}

TEST_F(VerifyCombList, TheBarMovesEverySixteenDrawsAndEndsAtItsLowestValue) {
    addGrid({1, 2, 3, 11, 12, 13});
    draws.resize(40, draws[0]);
    std::vector<std::int64_t> seen;
    desktop.onEvents = [&] {
        EXPECT_EQ(bar.min, 1);
        EXPECT_EQ(bar.max, 40);
        seen.push_back(bar.value);
    };
    grids.verifyCombList(draws, 40, bar);
    EXPECT_EQ(seen, (std::vector<std::int64_t>{16, 32}));
    EXPECT_EQ(bar.value, 1);
}

TEST_F(VerifyCombList, OfNoDrawsGivesZerosAndLeavesTheBarAlone) {
    addGrid({1, 2, 3, 11, 12, 13});
    bar.value = 20;
    EXPECT_EQ(winsOf(grids.verifyCombList(draws, 0, bar)), (std::array<int, 11>{}));
    EXPECT_EQ(bar.value, 20);
}

TEST_F(VerifyCombList, OfMoreDrawsThanThereAreFails) {
    EXPECT_EQ(failureNumber([&] { grids.verifyCombList(draws, 4, bar); }), 9);
    EXPECT_EQ(failureNumber([&] { grids.verifyCombList(draws, -1, bar); }), 9);
}

} // namespace
} // namespace boulix

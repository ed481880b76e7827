// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/gameComb.h"

#include "core/modMaths.h"
#include "printing/modPrinter.h"
#include "printing/slipTest.h"
#include "support/boulixTest.h"

#include <random>

namespace boulix {
namespace {

using Numbers = gameComb::Numbers;

class GameCombTest : public BoulixTest {
  protected:
    gameComb row;
};

TEST_F(GameCombTest, ANewRowIsAllZeros) {
    EXPECT_EQ(row.numbers(), (Numbers{}));
    EXPECT_EQ(row.sum(), 0);
}

TEST_F(GameCombTest, AnIndexOutside1To6IsARunTimeFailure) {
    for (const int i : {0, 7, -1}) {
        EXPECT_EQ(failureNumber([&] { (void)row.num(i); }), 9);
        EXPECT_EQ(failureNumber([&] { row.num(i, 3); }), 9);
    }
}

TEST_F(GameCombTest, WritingANumberLeavesTheSum) {
    row.sum(21);
    row.num(1, 40);
    EXPECT_EQ(row.sum(), 21);
}

TEST_F(GameCombTest, TheTextFormGivesNumbersAndSum) {
    row.fromString("01 / 02 / 03 / 04 / 05 / 06");
    EXPECT_EQ(row.numbers(), (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(row.sum(), 21);
}

TEST_F(GameCombTest, BlanksAroundTheFieldsDoNotCount) {
    row.fromString("  7/8 /   9/ 10/11/12   ");
    EXPECT_EQ(row.numbers(), (Numbers{7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(row.sum(), 57);
}

TEST_F(GameCombTest, AShortTextLeavesAHoleAndSumsFromTheHole) {
    for (int i = 1; i <= 6; ++i)
        row.num(i, static_cast<std::int16_t>(10 * i));
    row.fromString("3 / 7");
    EXPECT_EQ(row.numbers(), (Numbers{3, 20, 30, 40, 50, 7}));
    EXPECT_EQ(row.sum(), 3 + 20);
}

TEST_F(GameCombTest, ASingleNumberGoesToPosition6AndPosition1IsSummed) {
    row.num(1, 5);
    row.fromString("44");
    EXPECT_EQ(row.numbers(), (Numbers{5, 0, 0, 0, 0, 44}));
    EXPECT_EQ(row.sum(), 5);
}

TEST_F(GameCombTest, WhatStandsBehindASixthBarIsIgnored) {
    row.fromString("1/2/3/4/5/6/n'importe quoi");
    EXPECT_EQ(row.numbers(), (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(row.sum(), 21);
}

TEST_F(GameCombTest, ASeventhBarIsARunTimeFailure) {
    EXPECT_EQ(failureNumber([&] { row.fromString("1/2/3/4/5/6/7/8"); }), 9);
}

TEST_F(GameCombTest, AFieldThatIsEmptyOrNoNumberIsARunTimeFailure) {
    for (const char *text : {"", "1/2//4/5/6", "1/2/3/4/5/", "a/2/3/4/5/6", "1/2/3/4/5/six"})
        EXPECT_EQ(failureNumber([&] { row.fromString(text); }), 13) << text;
}

TEST_F(GameCombTest, AFieldBeyond16BitsIsARunTimeFailure) {
    EXPECT_EQ(failureNumber([&] { row.fromString("32768/2/3/4/5/6"); }), 6);
}

TEST_F(GameCombTest, SortIsTheBubbleSort) {
    std::mt19937 random(3);
    for (int turn = 0; turn < 500; ++turn) {
        Numbers plain{};
        for (std::int16_t &n : plain)
            n = static_cast<std::int16_t>(random() % 60);
        row = gameComb(plain);
        row.sort();
        for (std::size_t i = 0; i < 5; ++i)
            for (std::size_t j = 5; j > i; --j)
                if (plain[j] < plain[j - 1])
                    std::swap(plain[j], plain[j - 1]);
        EXPECT_EQ(row.numbers(), plain);
    }
}

TEST_F(GameCombTest, TheTotalIsTheSumOfTheNumbersAsTheyStand) {
    EXPECT_EQ(gameComb({-5, 100, 0, 1, 2, 3}).total(), 101);
    EXPECT_EQ(failureNumber([] { (void)gameComb({32767, 1, 0, 0, 0, 0}).total(); }), 6);
}

TEST_F(GameCombTest, DrawStrikesTheSixNumbersAtItsPlaceOnTheSlip) {
    testing_support::RecordingPicture picture;
    row = gameComb({1, 9, 10, 27, 40, 49});
    row.Draw(3, picture, slip::onPicture, modPrinter::directionUp);
    std::vector<testing_support::Cross> expected;
    for (const std::int16_t n : row.numbers())
        expected.push_back(testing_support::plainBox(3, n));
    testing_support::expectCrosses(testing_support::crossesOf(picture.seen()), expected);
}

TEST_F(GameCombTest, DrawTurnsAndMovesByDirectionAndMode) {
    testing_support::RecordingPicture picture;
    row = gameComb({12, 12, 12, 12, 12, 12});
    row.Draw(1, picture, slip::onCanvas2, 3);
    const auto turned =
        testing_support::plainTurned(testing_support::plainBox(1, 12), 3, 25 + 4, 150 + 27);
    testing_support::expectCrosses(testing_support::crossesOf(picture.seen()),
                                   std::vector<testing_support::Cross>(6, turned));
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/modStats.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "stats/statStores.h"
#include "stats/statsTest.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using namespace modStats;
using testing_support::listedTriplets;
using testing_support::periods;
using testing_support::results;
using testing_support::resultsBut;
using Results = std::map<int, std::int32_t>;

TEST_F(StatsTest, OfASingleDrawTheFrequencyCountsItsSixNumbersOnce) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 17}});
    compute(1, 0, 2, 2);
    EXPECT_EQ(results(), (Results{{11, 1}, {12, 1}, {13, 1}, {14, 1}, {15, 1}, {16, 1}}));
}

TEST_F(StatsTest, OfASingleDrawNoAbsenceHasEnded) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    computeAll(9, 1);
    EXPECT_EQ(results(), Results());
}

TEST_F(StatsTest, OfASingleDrawEveryLongestRunIsOne) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    computeAll(10, 1);
    EXPECT_EQ(resultsBut(1), Results());
}

TEST_F(StatsTest, OfASingleDrawTheCurrentRunsAreItsSevenNumbersWhateverTheChoice) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 17}});
    const Results seven = {{11, 1}, {12, 1}, {13, 1}, {14, 1}, {15, 1}, {16, 1}, {17, 1}};
    compute(8, 0, 2, 2);
    EXPECT_EQ(results(), seven);
    compute(8, 1, 2, 2);
    EXPECT_EQ(results(), seven);
}

TEST_F(StatsTest, AStretchThatEndsBeforeItBeginsGivesZeros) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 17}});
    const std::vector<std::int16_t> numbers = {1, 2, 3, 4};
    for (const int type : {1, 2, 3, 4, 5, 6, 7, 9}) {
        statResult.fill(49, 99);
        const int chosen = type >= 2 && type <= 5 ? type - 1 : 0;
        compute(type, 1, 2, 1, {numbers.begin(), numbers.begin() + chosen});
        EXPECT_EQ(results(), Results()) << "type " << type;
    }
    statResult.fill(49, 99);
    compute(10, 1, 2, 1);
    EXPECT_EQ(resultsBut(1), Results());
    compute(13, 1, 2, 1, {1});
    EXPECT_EQ(nStatPeriods, 0);
    compute(17, 1, 2, 1);
    EXPECT_EQ(resultsBut(0, 8), Results());
}

TEST_F(StatsTest, TheCurrentRunsMarkTheLastDrawOfAStretchThatEndsBeforeItBegins) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 17}});
    compute(8, 0, 2, 1);
    EXPECT_EQ(results(), (Results{{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}}));
}

TEST_F(StatsTest, ANumberNeverDrawnIsZeroAndItsLongestRunIsOne) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6, 7}});
    for (const int type : {1, 7, 8, 9}) {
        computeAll(type, 1);
        EXPECT_EQ(statResult(49), 0) << "type " << type;
    }
    computeAll(10, 1);
    EXPECT_EQ(statResult(49), 1);
}

TEST_F(StatsTest, TheAbsenceAtTheEndIsNoRecord) {
    addDraws({{20, 1, 2, 3, 4, 5, 6},
              {7, 8, 9, 10, 11, 12, 13},
              {20, 1, 2, 3, 4, 5, 6},
              {7, 8, 9, 10, 11, 12, 13},
              {7, 8, 9, 10, 11, 12, 13}});
    computeAll(9, 0);
    EXPECT_EQ(statResult(20), 1);
}

TEST_F(StatsTest, TheAbsenceBeforeTheFirstComingOutIsARecord) {
    addDraws({{1, 2, 3, 4, 5, 6, 7},
              {1, 2, 3, 4, 5, 6, 7},
              {1, 2, 3, 4, 5, 6, 7},
              {20, 2, 3, 4, 5, 6, 8}});
    computeAll(9, 0);
    EXPECT_EQ(results(), (Results{{20, 3}}));
    computeAll(9, 1);
    EXPECT_EQ(results(), (Results{{20, 3}, {8, 3}}));
    compute(9, 0, 3, 4);
    EXPECT_EQ(results(), (Results{{20, 1}}));
}

TEST_F(StatsTest, TheComplementaryCompletesTheChosenNumbersButNeverScoresAsAPartner) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {7, 11, 12, 13, 14, 15, 16}});
    computeAll(2, 1, {7});
    EXPECT_EQ(results(), (Results{{1, 1},
                                  {2, 1},
                                  {3, 1},
                                  {4, 1},
                                  {5, 1},
                                  {6, 1},
                                  {11, 1},
                                  {12, 1},
                                  {13, 1},
                                  {14, 1},
                                  {15, 1}}));
    computeAll(2, 0, {7});
    EXPECT_EQ(results(), (Results{{11, 1}, {12, 1}, {13, 1}, {14, 1}, {15, 1}}));
}

TEST_F(StatsTest, PartnersOfSeveralNumbersNeedThemAllInTheDraw) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 8, 9, 5}, {5, 4, 3, 2, 10, 11, 12}});
    computeAll(5, 0, {5, 2, 4, 3});
    EXPECT_EQ(results(), (Results{{1, 1}, {6, 1}, {10, 1}, {11, 1}}));
    computeAll(5, 1, {5, 2, 4, 3});
    EXPECT_EQ(results(), (Results{{1, 2}, {6, 1}, {8, 1}, {9, 1}, {10, 1}, {11, 1}}));
    computeAll(3, 0, {10, 3});
    EXPECT_EQ(results(), (Results{{2, 1}, {4, 1}, {5, 1}, {11, 1}}));
}

TEST_F(StatsTest, TheComplementaryRunsWithTheComplementaryOnly) {
    addDraws({{1, 2, 3, 4, 6, 7, 5}, {11, 12, 13, 14, 15, 16, 5}});
    computeAll(10, 1);
    EXPECT_EQ(resultsBut(1), (Results{{5, 2}}));
    computeAll(10, 0);
    EXPECT_EQ(resultsBut(1), Results());
}

TEST_F(StatsTest, ANumberOfTheSixDoesNotRunIntoTheComplementary) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 5}, {5, 21, 22, 23, 24, 25, 26}});
    computeAll(10, 1);
    EXPECT_EQ(resultsBut(1), Results());
}

TEST_F(StatsTest, ARunThatBreaksStartsAgainAtOne) {
    const SevenNumbers with = {1, 2, 3, 4, 5, 6, 7};
    const SevenNumbers without = {11, 12, 13, 14, 15, 16, 17};
    addDraws({with, with, with, without, with, with});
    computeAll(10, 0);
    EXPECT_EQ(statResult(1), 3);
    compute(10, 0, 4, 6);
    EXPECT_EQ(statResult(1), 2);
}

TEST_F(StatsTest, TheCurrentRunsGoBackAsLongAsADrawExtendsOne) {
    addDraws({{1, 2, 3, 4, 5, 6, 7},
              {1, 2, 3, 4, 5, 9, 6},
              {1, 2, 3, 14, 15, 16, 6},
              {1, 2, 23, 24, 25, 6, 27}});
    computeAll(8, 0);
    EXPECT_EQ(results(), (Results{{1, 4}, {2, 4}, {6, 1}, {23, 1}, {24, 1}, {25, 1}, {27, 1}}));
    computeAll(8, 1);
    EXPECT_EQ(results(), (Results{{1, 4}, {2, 4}, {6, 4}, {23, 1}, {24, 1}, {25, 1}, {27, 1}}));
    compute(8, 0, 3, 4);
    EXPECT_EQ(statResult(1), 2);
}

TEST_F(StatsTest, ADelayCountsFromTheNewestDrawOfTheBase) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 7}, {1, 22, 23, 24, 25, 26, 27}});
    compute(7, 0, 1, 2);
    EXPECT_EQ(results(), (Results{{11, 2},
                                  {12, 2},
                                  {13, 2},
                                  {14, 2},
                                  {15, 2},
                                  {16, 2},
                                  {1, 3},
                                  {2, 3},
                                  {3, 3},
                                  {4, 3},
                                  {5, 3},
                                  {6, 3}}));
    computeAll(7, 1);
    EXPECT_EQ(statResult(1), 1);
    EXPECT_EQ(statResult(27), 1);
    EXPECT_EQ(statResult(7), 2);
    EXPECT_EQ(statResult(2), 3);
}

TEST_F(StatsTest, SumsWithoutComplementaryLeaveTheEntriesAboveTheLargestSumAlone) {
    addDraws({{44, 45, 46, 47, 48, 49, 43}});
    computeAll(6, 1);
    EXPECT_EQ(nStatResult, 322);
    EXPECT_EQ(resultsBut(0, 322), (Results{{322, 1}}));
    computeAll(6, 0);
    EXPECT_EQ(nStatResult, 279);
    EXPECT_EQ(resultsBut(0, 322), (Results{{279, 1}, {322, 1}}));
    computeAll(6, 1);
    EXPECT_EQ(resultsBut(0, 322), (Results{{322, 1}}));
}

TEST_F(StatsTest, SumsTakeAnyChoiceButZeroForWith) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    for (const int withCompl : {-1, 1, 2}) {
        computeAll(6, withCompl);
        EXPECT_EQ(nStatResult, 322);
        EXPECT_EQ(resultsBut(0, 322), (Results{{28, 1}}));
    }
}

TEST_F(StatsTest, TheOthersTakeOnlyOneForWith) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    for (const int withCompl : {-1, 0, 2}) {
        computeAll(1, withCompl);
        EXPECT_EQ(statResult(7), 0);
        computeAll(17, withCompl);
        EXPECT_EQ(nStatResult, 7);
    }
}

TEST_F(StatsTest, TheStoredSumCountsWhereItIsAPossibleOne) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    lotoComb &comb = gDbCombs->Item(1).comb();
    comb.sum(150);
    comb.sumtot(151);
    computeAll(6, 0);
    EXPECT_EQ(resultsBut(0, 279), (Results{{150, 1}}));
    computeAll(6, 1);
    EXPECT_EQ(resultsBut(0, 322), (Results{{151, 1}}));
}

TEST_F(StatsTest, TheSumOfTheNumbersCountsWhereTheStoredOneIsImpossible) {
    struct Stored {
        std::int16_t sum;
        std::int16_t sumtot;
    };
    addDraws({{1, 2, 3, 4, 5, 7, 8}});
    lotoComb &comb = gDbCombs->Item(1).comb();
    for (const Stored stored : {Stored{0, 0}, {20, 27}, {280, 323}, {-5, -5}, {32767, 32767}}) {
        comb.sum(stored.sum);
        comb.sumtot(stored.sumtot);
        computeAll(6, 0);
        EXPECT_EQ(resultsBut(0, 279), (Results{{22, 1}})) << stored.sum;
        computeAll(6, 1);
        EXPECT_EQ(resultsBut(0, 322), (Results{{30, 1}})) << stored.sumtot;
        EXPECT_EQ(comb.sum(), stored.sum);
        EXPECT_EQ(comb.sumtot(), stored.sumtot);
    }
}

TEST_F(StatsTest, ANumberInEveryDrawHasNoPeriodOfAbsence) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {1, 12, 13, 14, 15, 16, 17}});
    computeAll(13, 0, {1});
    EXPECT_EQ(nStatPeriods, 0);
}

TEST_F(StatsTest, PeriodsStandInTimeOrderAndTheOpenOneIsThere) {
    const SevenNumbers with = {1, 2, 3, 4, 5, 6, 7};
    const SevenNumbers without = {11, 12, 13, 14, 15, 16, 1};
    addDraws({without, without, with, with, without, with, without, without, without});
    computeAll(13, 0, {1});
    EXPECT_EQ(periods(), (std::vector<std::int32_t>{2, 1, 3}));
    compute(13, 0, 2, 5, {1});
    EXPECT_EQ(periods(), (std::vector<std::int32_t>{1, 1}));
    computeAll(13, 1, {1});
    EXPECT_EQ(periods(), std::vector<std::int32_t>());
    computeAll(14, 1, {1, 11});
    EXPECT_EQ(periods(), (std::vector<std::int32_t>{2, 1}));
    computeAll(15, 0, {3, 1, 2});
    EXPECT_EQ(periods(), (std::vector<std::int32_t>{2, 1, 3}));
    computeAll(16, 0, {6, 1, 12, 2});
    EXPECT_EQ(periods(), (std::vector<std::int32_t>{9}));
}

TEST_F(StatsTest, EvenNumbersWithComplementaryFillEightClassesThatAddUpToTheStretch) {
    addDraws({{2, 4, 6, 8, 10, 12, 14},
              {2, 4, 6, 8, 10, 12, 13},
              {1, 3, 5, 7, 9, 11, 13},
              {1, 2, 3, 4, 5, 6, 8},
              {1, 2, 3, 4, 5, 6, 7}});
    compute(17, 1, 1, 4);
    EXPECT_EQ(nStatResult, 8);
    EXPECT_EQ(resultsBut(0, 8), (Results{{1, 1}, {5, 1}, {7, 1}, {8, 1}}));
    computeAll(17, 0);
    EXPECT_EQ(nStatResult, 7);
    EXPECT_EQ(resultsBut(0, 7), (Results{{1, 1}, {4, 2}, {7, 2}}));
}

TEST_F(StatsTest, TripletsNeverDrawnAreThoseOfTheWholeBaseWhateverTheStretch) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 17}, {1, 2, 3, 20, 21, 22, 23}});
    compute(11, 0, 2, 2);
    EXPECT_EQ(listedTriplets(), 18424 - 20 - 20 - 19);
    compute(11, 0, 3, 1);
    EXPECT_EQ(listedTriplets(), 18424 - 20 - 20 - 19);
    EXPECT_EQ(tripletTable(row(1, 2, 3)).flag, -1);
    EXPECT_EQ(tripletTable(row(4, 5, 7)).flag, 0);
    compute(11, 1, 1, 1);
    EXPECT_EQ(listedTriplets(), 18424 - 35 - 35 - 34);
    EXPECT_EQ(tripletTable(row(4, 5, 7)).flag, -1);
}

TEST_F(StatsTest, TheFilterKeepsTheTripletsWithTheChosenNumber) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    compute(12, 0, 1, 1, {6});
    EXPECT_EQ(listedTriplets(), 48 * 47 / 2 - 10);
    EXPECT_EQ(tripletTable(row(5, 6, 7)).flag, 0);
    EXPECT_EQ(tripletTable(row(4, 5, 6)).flag, -1);
    EXPECT_EQ(tripletTable(row(7, 8, 9)).flag, -1);
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog of chosen numbers, and what a base or a caller may do wrong.

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

constexpr int subscriptOutOfRange = 9;

TEST_F(StatsTest, TheDialogAsksForExactlyTheNumbersOfTheType) {
    const std::map<int, std::int16_t> asked = {{2, 1},  {3, 2},  {4, 3},  {5, 4}, {12, 1},
                                               {13, 1}, {14, 2}, {15, 3}, {16, 4}};
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    for (int type = 1; type <= 17; ++type) {
        const auto n = asked.find(type);
        desktop.numberShowings.clear();
        if (n == asked.end()) {
            computeAll(type, 0);
            EXPECT_TRUE(desktop.numberShowings.empty()) << "type " << type;
            continue;
        }
        const std::vector<std::int16_t> numbers = {9, 8, 7, 6};
        computeAll(type, 0, {numbers.begin(), numbers.begin() + n->second});
        ASSERT_EQ(desktop.numberShowings.size(), 1U) << "type " << type;
        EXPECT_EQ(desktop.numberShowings[0].maxSelected, n->second);
        EXPECT_EQ(chooser.nMinSelectedNbr(), n->second);
        EXPECT_EQ(chooser.selectedNbr(1), 9) << "the selector keeps the order of marking";
    }
}

TEST_F(StatsTest, ADismissedDialogLeavesTheStoresAlone) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    statResult(5) = 77;
    nStatPeriods = 1;
    statPeriods = {0, 88};
    tripletTable(9).flag = -1;
    for (const int type : {2, 3, 4, 5, 12, 13, 14, 15, 16}) {
        desktop.answerNumbers(NumberScript().cancel());
        computeAll(type, 1);
        EXPECT_EQ(chooser.nSelectedNbr(), 0);
    }
    EXPECT_EQ(statResult(5), 77);
    EXPECT_EQ(periods(), (std::vector<std::int32_t>{88}));
    EXPECT_EQ(listedTriplets(), 18423);
}

TEST_F(StatsTest, ATypeThatDoesNotExistComputesNothing) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    statResult(1) = 77;
    for (const int type : {-1, 0, 18, 32767})
        computeAll(type, 1);
    EXPECT_EQ(results(), (Results{{1, 77}}));
}

TEST_F(StatsTest, AnEmptyBaseGivesEmptyResultsAndNoCurrentRuns) {
    const std::map<int, std::vector<std::int16_t>> chosen = {
        {2, {1}},  {3, {1, 2}},  {4, {1, 2, 3}},  {5, {1, 2, 3, 4}}, {12, {1}},
        {13, {1}}, {14, {1, 2}}, {15, {1, 2, 3}}, {16, {1, 2, 3, 4}}};
    for (const std::int32_t last : {0, 1}) {
        for (int type = 1; type <= 17; ++type) {
            const auto numbers = chosen.find(type);
            const auto command = [&] {
                compute(type, 1, 1, last,
                        numbers == chosen.end() ? std::vector<std::int16_t>{} : numbers->second);
            };
            reset();
            EXPECT_EQ(failureNumber(command), type == 8 ? subscriptOutOfRange : 0)
                << "type " << type << " to " << last;
            EXPECT_EQ(resultsBut(type == 10 ? 1 : 0), Results()) << "type " << type;
            EXPECT_EQ(nStatPeriods, 0);
        }
    }
    computeAll(11, 0);
    EXPECT_EQ(listedTriplets(), 18424);
    computeAll(6, 0);
    EXPECT_EQ(nStatResult, 279);
    computeAll(17, 0);
    EXPECT_EQ(nStatResult, 7);
}

TEST_F(StatsTest, AStretchBeyondTheBaseIsAFailureAndTheResultStays) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    statResult(1) = 77;
    for (const int type : {1, 6, 7, 8, 9, 10, 17}) {
        EXPECT_EQ(failureNumber([&] { compute(type, 0, 1, 2); }), subscriptOutOfRange);
        EXPECT_EQ(failureNumber([&] { compute(type, 0, 0, 1); }), subscriptOutOfRange);
    }
    EXPECT_EQ(results(), (Results{{1, 77}}));
}

TEST_F(StatsTest, ANumberThatIsNoneIsAFailureWhereTheResultCountsByNumber) {
    for (const std::int16_t wrong : std::vector<std::int16_t>{0, -1, 50, 322, 323, 32767, -32768}) {
        gDbCombs->clear();
        addDraws({{1, 2, 3, 4, 5, 6, 7}});
        gDbCombs->Item(1).comb().num(6, wrong);
        for (const int type : {1, 7, 8, 9, 10, 11})
            EXPECT_EQ(failureNumber([&] { computeAll(type, 0); }), subscriptOutOfRange)
                << "type " << type << ", number " << wrong;
        EXPECT_EQ(failureNumber([&] { computeAll(2, 0, {1}); }), subscriptOutOfRange);
        EXPECT_EQ(failureNumber([&] { computeAll(2, 0, {40}); }), 0);
        EXPECT_EQ(failureNumber([&] { computeAll(17, 0); }), 0);
        EXPECT_EQ(failureNumber([&] { computeAll(13, 0, {1}); }), 0);
    }
}

TEST_F(StatsTest, AComplementaryThatIsNoNumberMattersOnlyWhereItCounts) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6, 7}});
    gDbCombs->Item(2).comb().compl_(0);
    for (const int type : {1, 7, 9, 10, 11}) {
        EXPECT_EQ(failureNumber([&] { computeAll(type, 0); }), 0) << "type " << type;
        EXPECT_EQ(failureNumber([&] { computeAll(type, 1); }), subscriptOutOfRange)
            << "type " << type;
    }
    EXPECT_EQ(failureNumber([&] { computeAll(8, 0); }), subscriptOutOfRange)
        << "the last draw's complementary always counts";
}

TEST_F(StatsTest, ASumThatNoNumbersGiveIsAFailure) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    lotoComb &comb = gDbCombs->Item(1).comb();
    comb.sum(0);
    comb.num(1, 300);
    EXPECT_EQ(failureNumber([&] { computeAll(6, 0); }), subscriptOutOfRange);
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecastTest.h"
#include "forecasts/pronostics.h"
#include "plainRule.h"
#include "support/locations.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace boulix {
namespace {

using testing_support::plainChosen;

class PronosticsPast : public BoulixTest {
  protected:
    pronostics set;
    std::mt19937 random{11};

    std::vector<int> found() const {
        std::vector<int> counts;
        for (std::int32_t i = 1; i <= set.maxSearched(); ++i)
            counts.push_back(set.nFound(i));
        return counts;
    }
    /// A rule that gives every number the same points.
    void addEqualRule() { set.Add(ruleOf(PronoType::rare, 100, 1)); }
    int presentIn(int draw, const std::vector<int> &numbers) const {
        int count = 0;
        for (const int number : numbers)
            if (gDbCombs->Item(draw).comb().isInside(static_cast<std::int16_t>(number), true))
                ++count;
        return count;
    }
};

TEST_F(PronosticsPast, BeginsAtTheFirstDrawWhereMoreDrawsBeforeAreAskedFor) {
    addRandomDraws(10, random);
    addEqualRule();
    ASSERT_TRUE(set.test(3, 10, 0, 49));
    EXPECT_EQ(set.maxSearched(), 3);
}

TEST_F(PronosticsPast, EndsAtTheLastDrawWhereMoreDrawsAfterAreAskedFor) {
    addRandomDraws(10, random);
    addEqualRule();
    ASSERT_TRUE(set.test(10, 2, 5, 49));
    EXPECT_EQ(set.maxSearched(), 3);
    ASSERT_TRUE(set.test(9, 2, 2147483647, 49));
    EXPECT_EQ(set.maxSearched(), 4);
}

TEST_F(PronosticsPast, CountsTheTestDrawItself) {
    addRandomDraws(10, random);
    addEqualRule();
    ASSERT_TRUE(set.test(5, 0, 0, 49));
    EXPECT_EQ(found(), std::vector<int>{7});
}

TEST_F(PronosticsPast, AllNumbersAsTheBestCountSevenInEveryDraw) {
    addRandomDraws(20, random);
    addEqualRule();
    ASSERT_TRUE(set.test(10, 100, 100, 49));
    EXPECT_EQ(found(), std::vector<int>(20, 7));
}

TEST_F(PronosticsPast, AmongEqualPointsTheLargerNumbersAreTheBest) {
    addDraw({44, 45, 46, 47, 48, 49, 1});
    addDraw({43, 42, 41, 40, 39, 38, 37});
    addEqualRule();
    ASSERT_TRUE(set.test(2, 1, 0, 6));
    EXPECT_EQ(found(), (std::vector<int>{6, 0}));
    ASSERT_TRUE(set.test(2, 1, 0, 7));
    EXPECT_EQ(found(), (std::vector<int>{6, 1}));
}

TEST_F(PronosticsPast, TakesTheNumbersWithTheMostPoints) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addDraw({11, 12, 13, 14, 15, 16, 17});
    set.Add(ruleOf(PronoType::outButNotLately, 1, 1, 5));          // nobody
    set.Add(ruleOf(PronoType::rare, 1, 1, 1));                     // everybody
    pronos lately = ruleOf(PronoType::outButNotLately, 1, 0, 100); // the first draw's
    lately.enableP(false);
    set.Add(lately);
    ASSERT_TRUE(set.test(2, 1, 0, 7));
    EXPECT_EQ(found(), (std::vector<int>{7, 0}));
}

TEST_F(PronosticsPast, ComputesTheForecastAsIfTheTestDrawWereTheLast) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addDraw({43, 44, 45, 46, 47, 48, 49});
    set.Add(ruleOf(PronoType::absent, 1, 0));
    ASSERT_TRUE(set.test(2, 0, 1, 7));
    EXPECT_EQ(found(), (std::vector<int>{0, 7}));
    for (const pronos &rule : set)
        EXPECT_EQ(rule.baseTir(), 3); // and looks back from the last draw again
}

TEST_F(PronosticsPast, KeepsThePointsOfTheLastCalculationWhileTheyAreValid) {
    addDraw({43, 44, 45, 46, 47, 48, 49});
    addDraw({43, 44, 45, 46, 47, 48, 49});
    addDraw({36, 37, 38, 39, 40, 41, 42});
    addDraw({36, 37, 38, 39, 40, 41, 42});
    set.Add(ruleOf(PronoType::absent, 1, 0));
    ASSERT_TRUE(set.test(4, 3, 0, 7));
    EXPECT_EQ(found(), (std::vector<int>{7, 7, 0, 0}));
    ASSERT_TRUE(set.test(2, 1, 2, 7));
    EXPECT_EQ(found(), (std::vector<int>{7, 7, 0, 0})); // still the best of the fourth draw
    set.computed(false);
    ASSERT_TRUE(set.test(2, 1, 2, 7));
    EXPECT_EQ(found(), (std::vector<int>{0, 0, 7, 7}));
}

TEST_F(PronosticsPast, ARefusedRuleLeavesTheEarlierResult) {
    addRandomDraws(10, random);
    addEqualRule();
    ASSERT_TRUE(set.test(5, 1, 1, 49));
    set.Item(1).nPoint(0);
    EXPECT_FALSE(set.test(8, 2, 2, 49));
    EXPECT_EQ(set.maxSearched(), 3);
    EXPECT_EQ(found(), std::vector<int>(3, 7));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4503");
}

TEST_F(PronosticsPast, ARefusedRuleLeavesTheDrawThatTheRulesLookBackFrom) {
    addRandomDraws(10, random);
    addEqualRule();
    addEqualRule();
    set.Item(1).baseTir(7);
    set.Item(2).nPoint(0);
    EXPECT_FALSE(set.test(8, 2, 2, 49));
    EXPECT_EQ(set.Item(1).baseTir(), 7);
}

TEST_F(PronosticsPast, NegativeDrawsBeforeOrAfterMakeAShortOrEmptyRun) {
    addRandomDraws(10, random);
    addEqualRule();
    ASSERT_TRUE(set.test(5, -2, 4, 49)); // draws 7 to 9
    EXPECT_EQ(set.maxSearched(), 3);
    ASSERT_TRUE(set.test(5, 4, -2, 49)); // draws 1 to 3
    EXPECT_EQ(set.maxSearched(), 3);
    ASSERT_TRUE(set.test(5, -1, 0, 49));
    EXPECT_EQ(set.maxSearched(), 0);
    ASSERT_TRUE(set.test(5, 0, -50, 49));
    EXPECT_EQ(set.maxSearched(), 0);
    ASSERT_TRUE(set.test(5, -2147483647, 0, 49));
    EXPECT_EQ(set.maxSearched(), 0);
}

TEST_F(PronosticsPast, TheResultIsReadFromPlacesOfTheRunOnly) {
    addRandomDraws(10, random);
    addEqualRule();
    ASSERT_TRUE(set.test(5, 1, 1, 49));
    for (const int place : {-1, 0, 4})
        EXPECT_EQ(failureNumber([&] { set.nFound(place); }), 9);
}

TEST_F(PronosticsPast, MoreBestNumbersThanThereAreFail) {
    addRandomDraws(10, random);
    addEqualRule();
    EXPECT_EQ(failureNumber([&] { set.test(5, 1, 1, 50); }), 9);
}

TEST_F(PronosticsPast, ATestDrawOutsideTheBaseFails) {
    addRandomDraws(10, random);
    addEqualRule();
    for (const int draw : {-5, 0, 11}) {
        set.computed(false);
        EXPECT_EQ(failureNumber([&] { set.test(draw, 1, 1, 6); }), 9) << draw;
    }
    EXPECT_EQ(failureNumber([&] { set.test(32768, 1, 1, 6); }), 6);
}

/// The same by hand: points number by number, best numbers one after the other.
std::vector<int> plainBest(pronostics &set, int draw, int count) {
    std::vector<int> points(50);
    for (pronos rule : set) {
        rule.baseTir(static_cast<std::int16_t>(draw));
        for (const int number : plainChosen(rule))
            points[static_cast<std::size_t>(number)] += rule.nPoint();
    }
    std::vector<int> best;
    while (static_cast<int>(best.size()) < count) {
        int next = 0;
        for (int number = 1; number <= 49; ++number) {
            const bool taken = std::count(best.begin(), best.end(), number) > 0;
            const auto at = [&](int n) { return points[static_cast<std::size_t>(n)]; };
            if (!taken && (next == 0 || at(number) >= at(next)))
                next = number;
        }
        best.push_back(next);
    }
    return best;
}

TEST_F(PronosticsPast, AgreesWithACountByHandOnRandomBases) {
    addRandomDraws(60, random);
    for (int round = 0; round < 40; ++round) {
        set.clear();
        const auto upTo = [this](int last) {
            return static_cast<std::int16_t>(1 + random() % static_cast<unsigned>(last));
        };
        const int draw = 20 + upTo(40);
        for (const PronoType type : {PronoType::outButNotLately, PronoType::absent,
                                     PronoType::absentCouple, PronoType::rare})
            set.Add(ruleOf(type, upTo(15), upTo(15), upTo(9)));
        const int before = upTo(30);
        const int after = upTo(30);
        const int count = upTo(49);
        ASSERT_TRUE(set.test(draw, before, after, count));
        const std::vector<int> best = plainBest(set, draw, count);
        std::vector<int> expected;
        for (int at = std::max(draw - before, 1); at <= std::min(draw + after, 60); ++at)
            expected.push_back(presentIn(at, best));
        ASSERT_EQ(found(), expected) << "round " << round;
    }
}

TEST_F(PronosticsPast, AgreesWithACountByHandOverTheLastHundredDrawsOfTheRealHistory) {
    const auto history = testing_support::operatorHistory();
    if (!history)
        GTEST_SKIP() << "the operator's history is not there";
    ASSERT_TRUE(importHistory(desktop, folder(), *history));
    const std::int32_t last = gDbCombs->Count();
    for (const PronoType type : {PronoType::outButNotLately, PronoType::absent,
                                 PronoType::absentCouple, PronoType::rare}) {
        set.clear();
        set.Add(ruleOf(type, 4, 2));
        const std::int32_t draw = last - 100;
        ASSERT_TRUE(set.test(draw, 0, 100, 10));
        const std::vector<int> best = plainBest(set, draw, 10);
        std::vector<int> expected;
        for (std::int32_t at = draw; at <= last; ++at)
            expected.push_back(presentIn(at, best));
        EXPECT_EQ(found(), expected) << "type " << static_cast<int>(type);
    }
}

} // namespace
} // namespace boulix

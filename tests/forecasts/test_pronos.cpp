// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecasts/pronos.h"

#include "forecastTest.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using Numbers = std::set<int>;

class PronosTest : public BoulixTest {
  protected:
    static Numbers computed(pronos rule) {
        rule.compute();
        return chosenBy(rule);
    }
};

/// The base: three draws of their own numbers, the oldest first.
class PronosOnThreeDraws : public PronosTest {
  protected:
    PronosOnThreeDraws() {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({11, 12, 13, 14, 15, 16, 17});
        addDraw({21, 22, 23, 24, 25, 26, 27});
    }
    const Numbers first = {1, 2, 3, 4, 5, 6, 7};
    const Numbers second = {11, 12, 13, 14, 15, 16, 17};
    const Numbers third = {21, 22, 23, 24, 25, 26, 27};

    static Numbers both(Numbers a, const Numbers &b) {
        a.insert(b.begin(), b.end());
        return a;
    }
};

TEST_F(PronosOnThreeDraws, ASpanOfOneHoldsTheBaseDrawAndTheOneBefore) {
    EXPECT_EQ(computed(ruleOf(PronoType::absent, 1, 0)), allBut(both(second, third)));
}

TEST_F(PronosOnThreeDraws, ASpanOfZeroHoldsTheBaseDraw) {
    EXPECT_EQ(computed(ruleOf(PronoType::absent, 0, 0)), allBut(third));
}

TEST_F(PronosOnThreeDraws, ANegativeSpanHoldsNoDraw) {
    EXPECT_EQ(computed(ruleOf(PronoType::absent, -1, 0)), allBut({}));
}

TEST_F(PronosOnThreeDraws, TypeOneTakesWhatCameOutInTheOlderPartOfTheSpan) {
    EXPECT_EQ(computed(ruleOf(PronoType::outButNotLately, 2, 1)), first);
    EXPECT_EQ(computed(ruleOf(PronoType::outButNotLately, 2, 0)), both(first, second));
}

TEST_F(PronosOnThreeDraws, TypeOneWithPEqualToNGivesNoPoints) {
    for (std::int16_t n = 0; n <= 2; ++n)
        EXPECT_EQ(computed(ruleOf(PronoType::outButNotLately, n, n)), Numbers{});
}

TEST_F(PronosOnThreeDraws, TypeOneWithPAboveNGivesNoPoints) {
    EXPECT_EQ(computed(ruleOf(PronoType::outButNotLately, 1, 2)), Numbers{});
}

TEST_F(PronosOnThreeDraws, ARuleLooksBackFromItsOwnDraw) {
    pronos rule = ruleOf(PronoType::absent, 1, 0);
    rule.baseTir(2);
    EXPECT_EQ(computed(rule), allBut(both(first, second)));
}

TEST_F(PronosOnThreeDraws, ASpanThatBeginsBeforeTheFirstDrawFailsAndLeavesNoPoints) {
    for (int type = 1; type <= 4; ++type) {
        pronos rule = ruleOf(static_cast<PronoType>(type), 2, 2);
        rule.compute();
        rule.n(3);
        rule.p(3);
        EXPECT_EQ(failureNumber([&] { rule.compute(); }), 9) << type;
        EXPECT_EQ(chosenBy(rule), Numbers{}) << type;
    }
}

TEST_F(PronosOnThreeDraws, TheBaseDrawMustExist) {
    for (const int draw : {0, 4, -1, 32767}) {
        pronos rule = ruleOf(PronoType::absent, 0, 0);
        rule.baseTir(static_cast<std::int16_t>(draw));
        EXPECT_EQ(failureNumber([&] { rule.compute(); }), 9) << draw;
    }
}

TEST_F(PronosOnThreeDraws, AnUnknownTypeLeavesThePointsAsTheyAre) {
    pronos rule = ruleOf(PronoType::absent, 1, 0);
    rule.compute();
    for (const std::int32_t type : {-1, 0, 5, 99}) {
        rule.pronoType(type);
        rule.compute();
        EXPECT_EQ(chosenBy(rule), allBut(both(second, third)));
    }
}

TEST_F(PronosOnThreeDraws, PointsOfTheLastCalculationAreGone) {
    pronos rule = ruleOf(PronoType::absent, 1, 0);
    rule.compute();
    rule.pronoType(1);
    rule.n(2);
    rule.p(1);
    rule.compute();
    EXPECT_EQ(chosenBy(rule), first);
}

TEST_F(PronosOnThreeDraws, PointsOutsideTheNumbersAreReportedAndZero) {
    pronos rule = ruleOf(PronoType::absent, 0, 0);
    rule.compute();
    EXPECT_EQ(rule.nbrPoint(49), 10);
    for (const int index : {0, 50, -7}) {
        desktop.messages.clear();
        EXPECT_EQ(rule.nbrPoint(static_cast<std::int16_t>(index)), 0);
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0],
                  (ShownBox{"Accès au compteur du numéro " + std::to_string(index) + " impossible!",
                            Icon::information, "boulix: Erreur N° 4551"}));
    }
}

TEST_F(PronosOnThreeDraws, TypeThreeShowsItsSearchCoupleByCouple) {
    computed(ruleOf(PronoType::absentCouple, 2, 0));
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &run = desktop.progressRuns[0];
    EXPECT_TRUE(run.unloaded);
    EXPECT_EQ(run.turns, 1176);
    EXPECT_EQ(run.last.caption, "Calcul en cours...");
    EXPECT_EQ(run.last.lblInfo, "Calcul des pronostiques");
    EXPECT_FALSE(run.last.ProgressBar2.visible);
    EXPECT_EQ(run.last.cancelTag, "0");
    for (std::size_t i = 0; i < run.steps.size(); ++i) {
        EXPECT_EQ(run.steps[i].ProgressBar.min, 1);
        EXPECT_EQ(run.steps[i].ProgressBar.max, 1176);
        EXPECT_EQ(run.steps[i].ProgressBar.value, static_cast<std::int64_t>(i) + 1);
    }
}

TEST_F(PronosOnThreeDraws, TheOtherTypesShowNothing) {
    for (const PronoType type : {PronoType::outButNotLately, PronoType::absent, PronoType::rare})
        computed(ruleOf(type, 2, 1));
    EXPECT_EQ(desktop.progressRuns.size(), 0U);
    EXPECT_EQ(desktop.eventTurns, 0);
}

TEST_F(PronosOnThreeDraws, TheSearchOfTypeThreeEndsOnlyAtItsEnd) {
    desktop.cancelProgressAt(5);
    EXPECT_EQ(computed(ruleOf(PronoType::absentCouple, 0, 0)), allBut(third));
    EXPECT_EQ(desktop.progressRuns[0].turns, 1176);
}

TEST_F(PronosTest, ANumberOutAsComplementaryOnlyCountsAsOutForAllTypes) {
    addDraw({1, 2, 3, 4, 5, 6, 49});
    addDraw({1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(computed(ruleOf(PronoType::outButNotLately, 1, 0)), Numbers{49});
    EXPECT_EQ(computed(ruleOf(PronoType::absent, 1, 0)).count(49), 0U);
    EXPECT_EQ(computed(ruleOf(PronoType::absentCouple, 1, 0)).count(49), 0U);
    EXPECT_EQ(computed(ruleOf(PronoType::rare, 0, 1)).count(49), 0U);
}

TEST_F(PronosTest, TypeFourTakesANumberOutExactlyNTimes) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addDraw({1, 2, 3, 14, 15, 16, 17});
    addDraw({1, 2, 23, 24, 25, 26, 27});
    addDraw({1, 32, 33, 34, 35, 36, 37});
    // 1 was out four times, 2 three times, 3 twice.
    EXPECT_EQ(computed(ruleOf(PronoType::rare, 2, 3)), allBut({1, 2}));
    EXPECT_EQ(computed(ruleOf(PronoType::rare, 3, 3)), allBut({1}));
    EXPECT_EQ(computed(ruleOf(PronoType::rare, 4, 3)), allBut({}));
}

TEST_F(PronosTest, TypeThreeGivesWhatTypeTwoGives) {
    std::mt19937 random(3);
    addRandomDraws(30, random);
    for (std::int16_t n = 0; n < 30; ++n)
        EXPECT_EQ(computed(ruleOf(PronoType::absentCouple, n, 0)),
                  computed(ruleOf(PronoType::absent, n, 0)));
}

TEST_F(PronosTest, ANumberAloneInItsDrawStandsInNoCouple) {
    addDraw({7, 7, 7, 7, 7, 7, 7}); // no real draw: here types 2 and 3 part
    EXPECT_EQ(computed(ruleOf(PronoType::absent, 0, 0)), allBut({7}));
    EXPECT_EQ(computed(ruleOf(PronoType::absentCouple, 0, 0)), allBut({}));
}

TEST_F(PronosTest, OnAnEmptyBaseEveryTypeFails) {
    for (int type = 1; type <= 4; ++type) {
        pronos rule = ruleOf(static_cast<PronoType>(type), 1, 1);
        EXPECT_EQ(failureNumber([&] { rule.compute(); }), 9);
    }
}

} // namespace
} // namespace boulix

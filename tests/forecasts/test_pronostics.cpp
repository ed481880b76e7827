// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecasts/pronostics.h"

#include "forecastTest.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace boulix {
namespace {

class PronosticsTest : public BoulixTest {
  protected:
    pronostics set;

    /// A rule that gives `points` to every number but those of the last draw.
    pronos absentRule(std::int32_t points = 10) const {
        return ruleOf(PronoType::absent, 1, 0, points);
    }
    /// The set looks back from the last draw.
    void lookBackFromTheEnd() {
        for (pronos &rule : set)
            rule.baseTir(static_cast<std::int16_t>(gDbCombs->Count()));
    }
    void expectRefusal(int number, int position, const std::string &problem) {
        desktop.messages.clear();
        EXPECT_FALSE(set.compute(true));
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0],
                  (ShownBox{"Impossible d'initialiser le pronostique numéro " +
                                std::to_string(position) + ".\r\n" + problem,
                            Icon::information, "boulix: Erreur N° " + std::to_string(number)}));
    }
};

class PronosticsOnDraws : public PronosticsTest {
  protected:
    PronosticsOnDraws() {
        addDraw({1, 2, 3, 4, 5, 6, 8});
        addDraw({1, 2, 3, 4, 5, 6, 8});
        addDraw({11, 12, 13, 14, 15, 16, 18});
    }
};

TEST_F(PronosticsTest, StartsWithFourRulesWithoutParameters) {
    set.init();
    const struct {
        const char *label;
        bool enableP;
    } rows[] = {
        {"Le numéro est sorti au cours de N derniers tirages, mais pas dans les P derniers "
         "précédents",
         true},
        {"Le numéro n'est pas sorti depuis plus de N tirages", false},
        {"Le numéro appartient à un couple qui n'est pas sorti depuis N tirages", false},
        {"Le numéro est sorti moins de N fois au cours de P derniers tirages", true},
    };
    ASSERT_EQ(set.Count(), 4);
    for (int i = 1; i <= 4; ++i) {
        const pronos &rule = set.Item(i);
        EXPECT_EQ(rule.label(), rows[i - 1].label);
        EXPECT_EQ(rule.pronoType(), i);
        EXPECT_EQ(rule.n(), 0);
        EXPECT_EQ(rule.p(), 0);
        EXPECT_EQ(rule.nPoint(), 0);
        EXPECT_TRUE(rule.enableN());
        EXPECT_EQ(rule.enableP(), rows[i - 1].enableP);
    }
    EXPECT_EQ(set.nSelected(), 0);
    EXPECT_EQ(set.maxSearched(), 0);
}

TEST_F(PronosticsOnDraws, AddsACopyThatLooksBackFromNoDraw) {
    const pronos source = ruleOf(PronoType::rare, 3, 4, 5);
    pronos &rule = set.Add(source);
    EXPECT_EQ(rule.label(), "x");
    EXPECT_EQ(rule.n(), 3);
    EXPECT_EQ(rule.p(), 4);
    EXPECT_EQ(rule.nPoint(), 5);
    EXPECT_EQ(rule.pronoType(), 4);
    EXPECT_TRUE(rule.enableN());
    EXPECT_TRUE(rule.enableP());
    EXPECT_EQ(rule.baseTir(), 0);
    rule.n(7);
    EXPECT_EQ(source.n(), 3);
    EXPECT_EQ(set.Item(1).n(), 7);
}

TEST_F(PronosticsTest, FindsAndRemovesARuleByPositionOrKey) {
    for (std::int16_t n = 1; n <= 4; ++n)
        set.Add(ruleOf(PronoType::absent, n, 0), n == 2 ? "deux" : "");
    EXPECT_EQ(set.Item("deux").n(), 2);
    set.Remove(1);
    EXPECT_EQ(set.Item("deux").n(), 2);
    EXPECT_EQ(set.Item(2).n(), 3);
    set.Remove("deux");
    EXPECT_EQ(set.Count(), 2);
    EXPECT_EQ(set.Item(1).n(), 3);
    EXPECT_EQ(failureNumber([&] { set.Item("deux"); }), 5);
    std::vector<int> order;
    for (const pronos &rule : set)
        order.push_back(rule.n());
    EXPECT_EQ(order, (std::vector<int>{3, 4}));
}

TEST_F(PronosticsTest, FailsForAPositionThatDoesNotExist) {
    set.Add(ruleOf(PronoType::absent, 1, 0));
    for (const int position : {-1, 0, 2}) {
        EXPECT_EQ(failureNumber([&] { set.Item(position); }), 9);
        EXPECT_EQ(failureNumber([&] { set.Remove(position); }), 9);
    }
    EXPECT_EQ(set.Count(), 1);
}

TEST_F(PronosticsOnDraws, SumsThePointsOfAllRules) {
    set.Add(absentRule());
    set.Add(absentRule());
    set.Add(ruleOf(PronoType::outButNotLately, 1, 0, 3));
    lookBackFromTheEnd();
    EXPECT_TRUE(set.compute(false));
    EXPECT_EQ(set.nbrPoint(7), 20);
    EXPECT_EQ(set.nbrPoint(1), 3);
    EXPECT_EQ(set.nbrPoint(11), 0);
}

TEST_F(PronosticsOnDraws, SumsTheRulesThatGiveAndThoseThatDoNot) {
    set.Add(absentRule(10));
    set.Add(ruleOf(PronoType::rare, 1, 2, 3));
    lookBackFromTheEnd();
    EXPECT_TRUE(set.compute(false));
    EXPECT_EQ(set.nbrPoint(49), 13); // never out
    EXPECT_EQ(set.nbrPoint(1), 0);   // out twice in three draws, last in the second
    EXPECT_EQ(set.nbrPoint(11), 3);  // out once, lately
}

TEST_F(PronosticsOnDraws, ASecondComputeAfterAChangeOfNAloneGivesTheOldPoints) {
    set.Add(absentRule());
    lookBackFromTheEnd();
    ASSERT_TRUE(set.compute(true));
    set.Item(1).n(2);
    EXPECT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(20), 10);
    set.Item(1).n(0); // not even the check is made
    EXPECT_TRUE(set.compute(true));
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PronosticsOnDraws, AddClearAndTheFlagItselfCauseANewCalculation) {
    set.Add(absentRule());
    lookBackFromTheEnd();
    ASSERT_TRUE(set.compute(true));
    set.Item(1).nPoint(4);
    set.computed(false);
    ASSERT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(20), 4);
    set.Add(absentRule(1));
    lookBackFromTheEnd();
    ASSERT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(20), 5);
    set.clear();
    EXPECT_EQ(set.Count(), 0);
    ASSERT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(20), 0);
}

TEST_F(PronosticsOnDraws, RemoveLeavesThePointsAsTheyAre) {
    set.Add(absentRule());
    lookBackFromTheEnd();
    ASSERT_TRUE(set.compute(true));
    set.Remove(1);
    EXPECT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(20), 10);
}

TEST_F(PronosticsOnDraws, ARuleWithoutItsParametersIsRefusedAndThePointsStay) {
    set.Add(absentRule());
    lookBackFromTheEnd();
    ASSERT_TRUE(set.compute(true));
    set.computed(false);
    for (const int value : {0, -3}) {
        set.Item(1).n(static_cast<std::int16_t>(value));
        expectRefusal(4501, 1, "N n'a pas été défini!!!");
    }
    EXPECT_EQ(set.nbrPoint(20), 10);
}

TEST_F(PronosticsTest, AnUnusedPMayBeZeroAndAUsedOneNot) {
    set.Add(ruleOf(PronoType::absent, 1, 0));
    pronos rule = ruleOf(PronoType::absent, 1, 0);
    rule.enableP(true);
    set.Add(rule);
    expectRefusal(4502, 2, "P n'a pas été défini!!!");
    set.Item(2).p(-1);
    expectRefusal(4502, 2, "P n'a pas été défini!!!");
}

TEST_F(PronosticsOnDraws, AnUnusedNMayBeZero) {
    pronos rule = absentRule();
    rule.n(0);
    rule.enableN(false);
    set.Add(rule);
    lookBackFromTheEnd();
    EXPECT_TRUE(set.compute(true));
}

TEST_F(PronosticsTest, PointsOfZeroAreRefusedWhateverTheType) {
    for (const std::int32_t type : {1, 2, 3, 4, 0, 77}) {
        set.clear();
        pronos rule = ruleOf(PronoType::absent, 1, 1, 0);
        rule.pronoType(type);
        set.Add(rule);
        expectRefusal(4503, 1, "Le nombre de points à attribuer n'a pas été défini!!!");
        set.Item(1).nPoint(-10);
        expectRefusal(4503, 1, "Le nombre de points à attribuer n'a pas été défini!!!");
    }
}

TEST_F(PronosticsTest, TheFirstFaultIsReportedAlone) {
    set.init();
    expectRefusal(4501, 1, "N n'a pas été défini!!!");
    set.Item(1).n(1);
    expectRefusal(4502, 1, "P n'a pas été défini!!!");
    set.Item(1).p(1);
    expectRefusal(4503, 1, "Le nombre de points à attribuer n'a pas été défini!!!");
    set.Item(1).nPoint(1);
    expectRefusal(4501, 2, "N n'a pas été défini!!!");
}

TEST_F(PronosticsOnDraws, WithoutTheCheckRulesWithoutParametersAreComputed) {
    set.Add(ruleOf(PronoType::absent, 0, 0, 0));
    lookBackFromTheEnd();
    EXPECT_TRUE(set.compute(false));
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PronosticsOnDraws, ASumBeyondItsWidthIsAnOverflow) {
    set.Add(absentRule(2147483647));
    set.Add(absentRule(1));
    lookBackFromTheEnd();
    EXPECT_EQ(failureNumber([&] { set.compute(true); }), 6);
}

TEST_F(PronosticsOnDraws, AFailureLeavesThePointsInvalid) {
    set.Add(ruleOf(PronoType::absent, 3, 0)); // four draws of three
    lookBackFromTheEnd();
    EXPECT_EQ(failureNumber([&] { set.compute(true); }), 9);
    set.Item(1).n(2);
    EXPECT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(20), 10);
    EXPECT_EQ(set.nbrPoint(1), 0);
}

TEST_F(PronosticsTest, PointsOutsideTheNumbersAreReportedAndZero) {
    for (const int number : {-1, 0, 50, 100000}) {
        desktop.messages.clear();
        EXPECT_EQ(set.nbrPoint(number), 0);
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0],
                  (ShownBox{"Impossible d'accéder au compteur de point du numéro " +
                                std::to_string(number) + "!",
                            Icon::information, "boulix: Erreur N° 4504"}));
    }
}

TEST_F(PronosticsTest, TheSelectionHoldsFortyNineNumbersAndBeginsAnewWhenCleared) {
    for (std::int16_t i = 1; i <= 49; ++i)
        set.selNbr(static_cast<std::int16_t>(50 - i));
    EXPECT_EQ(set.nSelected(), 49);
    EXPECT_EQ(failureNumber([&] { set.selNbr(1); }), 9);
    EXPECT_EQ(set.nSelected(), 50) << "the number was counted before its place was refused";
    for (std::int16_t i = 1; i <= 49; ++i)
        EXPECT_EQ(set.Selected(i), 50 - i);
    set.clearSelection();
    EXPECT_EQ(set.nSelected(), 0);
    EXPECT_EQ(set.Selected(1), 49); // the places are not wiped
    set.selNbr(12);
    EXPECT_EQ(set.nSelected(), 1);
    EXPECT_EQ(set.Selected(1), 12);
    EXPECT_EQ(set.Selected(2), 48);
}

TEST_F(PronosticsTest, ASelectedNumberIsReadFromPlacesOneToFortyNine) {
    for (const int place : {-1, 0, 50})
        EXPECT_EQ(failureNumber([&] { set.Selected(static_cast<std::int16_t>(place)); }), 9);
    EXPECT_EQ(set.Selected(49), 0);
}

} // namespace
} // namespace boulix

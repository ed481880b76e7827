// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "eliminators/eliminators.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

class EliminatorsTest : public BoulixTest {
  protected:
    EliminatorsTest() { rules.init(); }

    void turnOn(int index, std::int16_t value) {
        rules.Item(index).status(-1);
        rules.Item(index).Value(value);
    }

    eliminators rules;
};

struct RuleRow {
    const char *label;
    std::int16_t valMin;
    std::int16_t valMax;
};

TEST_F(EliminatorsTest, TheEightRulesStandInTheirOrderAllOff) {
    const std::vector<RuleRow> expected = {
        {"Eliminer les combinaisons contenant plus de N numéros de la même dizaine", 2, 6},
        {"Eliminer les combinaisons contenant plus de N numéros de la même septaine", 2, 6},
        {"Eliminer les combinaisons dont la somme des numéros est inférieure à", 21, 279},
        {"Eliminer les combinaisons dont la somme des numéros est supérieure à", 21, 279},
        {"Eliminer les combinaisons contenant au moins N numéros pairs", 2, 6},
        {"Eliminer les combinaisons contenant au moins N numéros impairs", 2, 6},
        {"Eliminer les combinaisons contenant au moins N numéros consécutifs", 2, 6},
        {"Eliminer les combinaisons contenant au moins l'un des numéros de la liste", 0, 0},
    };
    ASSERT_EQ(rules.Count(), 8);
    for (int i = 1; i <= 8; ++i) {
        const RuleRow &row = expected[static_cast<std::size_t>(i - 1)];
        const eliminator &rule = rules.Item(i);
        EXPECT_EQ(rule.label(), row.label);
        EXPECT_EQ(rule.ValMin(), row.valMin);
        EXPECT_EQ(rule.ValMax(), row.valMax);
        EXPECT_EQ(rule.Value(), 0);
        EXPECT_EQ(rule.status(), 0);
    }
}

TEST_F(EliminatorsTest, AValueOutsideItsRangePassesWhileTheRuleIsOff) {
    for (int i = 1; i <= 7; ++i)
        rules.Item(i).Value(1);
    EXPECT_TRUE(rules.verify());
    EXPECT_TRUE(desktop.messages.empty());
}

struct RangeMessage {
    int rule;
    const char *number;
    const char *firstLine;
    const char *range;
};

class EliminatorsRangeTest : public EliminatorsTest,
                             public ::testing::WithParamInterface<RangeMessage> {};

TEST_P(EliminatorsRangeTest, AValueOutsideItsRangeIsRefusedWithTheMessageOfTheRule) {
    const RangeMessage &message = GetParam();
    turnOn(message.rule, 1);
    EXPECT_FALSE(rules.verify());
    const std::string text =
        std::string(message.firstLine) + "\r\nLa valeur doit être comprise entre " + message.range;
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {text, Icon::information, std::string("boulix: Erreur N° ") + message.number}}));
    turnOn(message.rule, static_cast<std::int16_t>(rules.Item(message.rule).ValMax() + 1));
    EXPECT_FALSE(rules.verify());
    EXPECT_EQ(desktop.messages.size(), 2U);
}

TEST_P(EliminatorsRangeTest, TheEndsOfTheRangePass) {
    const int rule = GetParam().rule;
    turnOn(rule, rules.Item(rule).ValMin());
    EXPECT_TRUE(rules.verify());
    turnOn(rule, rules.Item(rule).ValMax());
    EXPECT_TRUE(rules.verify());
    EXPECT_TRUE(desktop.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    AllThresholds, EliminatorsRangeTest,
    ::testing::Values(
        RangeMessage{1, "2901",
                     "Problème sur la définition de l'éliminateur de dizaines:", "2 et 6"},
        RangeMessage{2, "2902",
                     "Problème sur la définition de l'éliminateur de septaines:", "2 et 6"},
        RangeMessage{3, "2903",
                     "Problème sur la définition de l'éliminateur de somme mini:", "21 et 279"},
        RangeMessage{4, "2904",
                     "Problème sur la définition de l'éliminateur de somme maxi:", "21 et 279"},
        RangeMessage{5, "2905",
                     "Problème sur la définition de l'éliminateur de nombres pairs:", "2 et 6"},
        RangeMessage{6, "2906",
                     "Problème sur la définition de l'éliminateur de nombres impairs:", "2 et 6"},
        RangeMessage{
            7, "2907",
            "Problème sur la définition de l'éliminateur de numéros consécutifs:", "2 et 6"}),
    [](const auto &tested) { return "Rule" + std::to_string(tested.param.rule); });

TEST_F(EliminatorsTest, TheListRuleIsNeverChecked) {
    turnOn(8, 77);
    EXPECT_TRUE(rules.verify());
}

TEST_F(EliminatorsTest, OfSeveralRulesOutOfRangeOnlyTheFirstIsReported) {
    turnOn(6, 0);
    turnOn(3, 5);
    turnOn(7, 9);
    EXPECT_FALSE(rules.verify());
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2903");
}

TEST_F(EliminatorsTest, ASetThatLostItsRulesHasNothingToCheckAndPasses) {
    EXPECT_TRUE(eliminators().verify());
}

TEST_F(EliminatorsTest, RulesAreReachedByPositionOrByKey) {
    eliminators set;
    set.Add("premier", 1, 2, 3, -1, "un");
    set.Add("deuxième", 4, 5, 6, 0);
    set.Add("troisième", 7, 8, 9, 0, "trois");
    EXPECT_EQ(set.Item("un").label(), "premier");
    EXPECT_EQ(set.Item(2).label(), "deuxième");
    set.Remove("un");
    ASSERT_EQ(set.Count(), 2);
    EXPECT_EQ(set.Item("trois").Value(), 7);
    set.Remove(1);
    EXPECT_EQ(set.Item("trois").label(), "troisième");
    EXPECT_EQ(failureNumber([&] { set.Item("un"); }), 5);
    EXPECT_EQ(failureNumber([&] { set.Item(2); }), 9);
    EXPECT_EQ(failureNumber([&] { set.Remove(0); }), 9);
}

TEST_F(EliminatorsTest, AKeyThatIsTakenIsARunTimeFailureAndAddsNothing) {
    eliminators set;
    set.Add("premier", 0, 0, 0, 0, "clef");
    EXPECT_EQ(failureNumber([&] { set.Add("deuxième", 0, 0, 0, 0, "clef"); }), 5);
    EXPECT_EQ(set.Count(), 1);
}

} // namespace
} // namespace boulix

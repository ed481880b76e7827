// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The eliminators page: its boxes, what goes into the rules and when, the list of numbers.

#include "workbench/eliminatorPage.h"

#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "support/boulixTest.h"

#include <string>
#include <vector>

namespace boulix {
namespace {

class EliminatorPageTest : public BoulixTest, protected eliminatorView {
  protected:
    EliminatorPageTest() {
        gEliminators->init();
        page.init();
        page.view(this);
    }
    ~EliminatorPageTest() override { page.view(nullptr); }
    void refresh() override { ++refreshes; }

    static eliminator &rule(int number) { return gEliminators->Item(number); }
    static std::vector<std::int16_t> listed() {
        std::vector<std::int16_t> numbers;
        for (std::int16_t n = 1; n <= 49; ++n)
            if (rule(8).eliminNbr(n) != 0)
                numbers.push_back(n);
        return numbers;
    }
    void click(eliminatorPage::Button button) { page.clickButton(button); }

    eliminatorPage page;
    int refreshes = 0;
};

using Numbers = std::vector<std::int16_t>;

TEST_F(EliminatorPageTest, EachBoxShowsItsRuleAndIsOff) {
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(page.chkEliminator(i), rule(i + 1).label());
        EXPECT_FALSE(page.ticked(i));
    }
    for (int i = 0; i < 7; ++i)
        EXPECT_FALSE(page.txtEnabled(i));
    EXPECT_FALSE(page.btnSelectListEnabled());
}

TEST_F(EliminatorPageTest, ATextBoxIsEnabledExactlyWhileItsRuleIsTicked) {
    page.tick(3, true);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(page.txtEnabled(i), i == 3);
    EXPECT_FALSE(page.btnSelectListEnabled());
    page.tick(3, false);
    EXPECT_FALSE(page.txtEnabled(3));
}

TEST_F(EliminatorPageTest, TheListButtonIsEnabledExactlyWhileTheLastRuleIsTicked) {
    page.tick(7, true);
    EXPECT_TRUE(page.btnSelectListEnabled());
    page.tick(7, false);
    EXPECT_FALSE(page.btnSelectListEnabled());
}

TEST_F(EliminatorPageTest, TickedRulesGoOnWithTheirValues) {
    page.tick(0, true);
    page.txtEliminator[0] = "4";
    page.tick(2, true);
    page.txtEliminator[2] = "  150 ";
    page.tick(7, true);
    page.toRules();
    EXPECT_EQ(rule(1).status(), -1);
    EXPECT_EQ(rule(1).Value(), 4);
    EXPECT_EQ(rule(3).Value(), 150);
    EXPECT_EQ(rule(8).status(), -1);
    EXPECT_EQ(rule(8).Value(), 0);
    EXPECT_EQ(rule(2).status(), 0);
}

TEST_F(EliminatorPageTest, TheListRuleGoesOnWithTheValue0WhateverItHad) {
    rule(8).Value(5);
    page.tick(7, true);
    page.toRules();
    EXPECT_EQ(rule(8).Value(), 0);
}

TEST_F(EliminatorPageTest, TheValueOfARuleThatIsOffKeepsItsOldContent) {
    rule(5).Value(3);
    rule(5).status(-1);
    page.txtEliminator[4] = "6";
    page.toRules();
    EXPECT_EQ(rule(5).status(), 0);
    EXPECT_EQ(rule(5).Value(), 3);
}

TEST_F(EliminatorPageTest, ABlankBoxGivesTheValue0WhichTheRulesThenRefuse) {
    rule(6).Value(5);
    page.tick(5, true);
    page.txtEliminator[5] = "   ";
    page.toRules();
    EXPECT_EQ(rule(6).Value(), 0);
    EXPECT_FALSE(gEliminators->verify());
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2906");
}

TEST_F(EliminatorPageTest, ValuesAreRoundedToTheNearestTiesToEven) {
    const std::pair<const char *, int> values[] = {{"2.5", 2}, {"3.5", 4},   {"2.6", 3},
                                                   {"-4", -4}, {"trois", 0}, {"5 numéros", 5}};
    page.tick(0, true);
    for (const auto &[text, value] : values) {
        page.txtEliminator[0] = text;
        page.toRules();
        EXPECT_EQ(rule(1).Value(), value) << text;
    }
}

TEST_F(EliminatorPageTest, AValueBeyond16BitsEndsTheCommandWithAMessage) {
    page.tick(0, true);
    page.txtEliminator[0] = "99999";
    click(eliminatorPage::saveRules);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 6");
}

TEST_F(EliminatorPageTest, SavingTakesThePageFirstAndLoadingShowsTheRules) {
    page.tick(1, true);
    page.txtEliminator[1] = "5";
    desktop.answerSave(file("regles.elm"));
    click(eliminatorPage::saveRules);

    page.tick(1, false);
    page.tick(4, true);
    page.txtEliminator[1] = "autre";
    page.txtEliminator[4] = "2";
    desktop.answerOpen(file("regles.elm"));
    click(eliminatorPage::loadRules);
    EXPECT_TRUE(page.ticked(1));
    EXPECT_EQ(page.txtEliminator[1], "5");
    EXPECT_FALSE(page.ticked(4));
    EXPECT_EQ(page.txtEliminator[4], "2") << "a rule that is off leaves its text";
    EXPECT_GT(refreshes, 0);
}

TEST_F(EliminatorPageTest, AFileWithAllRulesOnTicksAllBoxesAndFillsTheirTexts) {
    for (int i = 0; i < 8; ++i)
        page.tick(i, true);
    for (int i = 0; i < 7; ++i)
        page.txtEliminator[static_cast<std::size_t>(i)] = std::to_string(i + 2);
    desktop.answerSave(file("regles.elm"));
    click(eliminatorPage::saveRules);
    page.txtEliminator = {};
    for (int i = 0; i < 8; ++i)
        page.tick(i, false);
    desktop.answerOpen(file("regles.elm"));
    click(eliminatorPage::loadRules);
    EXPECT_TRUE(desktop.messages.empty());
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(page.ticked(i)) << i;
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(page.txtEliminator[static_cast<std::size_t>(i)], std::to_string(i + 2));
}

TEST_F(EliminatorPageTest, EveryChangeOfTheBoxesIsShownOnTheScreen) {
    page.tick(3, true);
    EXPECT_EQ(refreshes, 1);
    page.fromRules();
    EXPECT_EQ(refreshes, 2);
    page.tick(3, true);
    page.init();
    EXPECT_EQ(refreshes, 4);
    EXPECT_FALSE(page.ticked(3)) << "each rule starts off";
}

TEST_F(EliminatorPageTest, ARefusedFileLeavesTheBoxesAsTheyAre) {
    page.tick(1, true);
    page.txtEliminator[1] = "5";
    testing_support::writeBytes(file("autre.elm"), "pas un fichier");
    desktop.answerOpen(file("autre.elm"));
    click(eliminatorPage::loadRules);
    EXPECT_EQ(gEliminators->Count(), 0);
    EXPECT_TRUE(page.ticked(1));
    EXPECT_EQ(page.txtEliminator[1], "5");
    page.toRules(); // and has no rule to go to
}

TEST_F(EliminatorPageTest, AnUnreadableFileIsShownAsAFailure) {
    desktop.answerOpen(file("absent.elm"));
    click(eliminatorPage::loadRules);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 53");
}

TEST_F(EliminatorPageTest, TheListButtonMarksTheListedNumbersAndTakesTheNewOnes) {
    for (const int n : {30, 7, 12})
        rule(8).eliminNbr(n, -1);
    desktop.answerNumbers(NumberScript().click({7, 45, 3}).ok()); // 7 off, two more on
    page.clickSelectList();
    ASSERT_EQ(desktop.numberShowings.size(), 1U);
    EXPECT_EQ(desktop.numberShowings[0].markedBefore, (Numbers{7, 12, 30}));
    EXPECT_EQ(desktop.numberShowings[0].maxSelected, 49);
    EXPECT_EQ(listed(), (Numbers{3, 12, 30, 45}));
    EXPECT_EQ(rule(8).eliminNbr(45), -1);
}

TEST_F(EliminatorPageTest, ACancelledSelectionEmptiesTheList) {
    for (const int n : {1, 30, 49})
        rule(8).eliminNbr(n, -1);
    desktop.answerNumbers(NumberScript().cancel());
    page.clickSelectList();
    EXPECT_EQ(listed(), Numbers{});
}

TEST_F(EliminatorPageTest, AfterALoadTheListShowsAllNumbersAsChosen) {
    rule(8).eliminNbr(30, -1);
    desktop.answerSave(file("regles.elm"));
    click(eliminatorPage::saveRules);
    desktop.answerOpen(file("regles.elm"));
    click(eliminatorPage::loadRules);
    desktop.answerNumbers(NumberScript().ok());
    page.clickSelectList();
    EXPECT_EQ(desktop.numberShowings.at(0).markedBefore.size(), 49U);
}

TEST_F(EliminatorPageTest, WithoutRulesTheListButtonIsAFailureThatIsShown) {
    *gEliminators = eliminators();
    page.clickSelectList();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The eliminators page: its boxes, what goes into the rules and when, the list of numbers.

#include "workbench/eliminatorPage.h"

#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "sill/undo.h"
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

TEST_F(EliminatorPageTest, EachBoxTellsItsRange) {
    EXPECT_EQ(eliminatorPage::rangeText(0), "2 à 6");
    EXPECT_EQ(eliminatorPage::rangeText(3), "21 à 279");
    rule(1).ValMax(5); // as a file can have it
    EXPECT_EQ(eliminatorPage::rangeText(0), "2 à 5");
}

TEST_F(EliminatorPageTest, ABoxShowsTheValueThatWasTakenFromIt) {
    for (int i = 0; i < 4; ++i)
        page.tick(i, true);
    page.txtEliminator = {"quatre", "", "  150 ", "4.6", "7", "", ""};
    const int before = refreshes;
    page.toRules();
    EXPECT_EQ(page.txtEliminator, (std::array<std::string, 7>{"0", "0", "150", "5", "7", "", ""}));
    EXPECT_GT(refreshes, before);
}

TEST_F(EliminatorPageTest, AValueThatNoRuleCanHoldIsTraceableToItsBox) {
    page.tick(2, true);
    page.txtEliminator[2] = "99999";
    click(eliminatorPage::saveRules);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Dépassement de capacité\r\n« Eliminer les combinaisons dont la somme des "
                        "numéros est inférieure à » attend un nombre entier de 21 à 279 ; il y "
                        "avait « 99999 ».",
                        Icon::critical, "Boulix Erreur système N° 6"}));
    EXPECT_EQ(desktop.focusedFields, (std::vector<std::string>{"txtEliminator_2"}));
    EXPECT_TRUE(desktop.saveQuestions.empty());
    EXPECT_EQ(page.txtEliminator[2], "99999");
}

TEST_F(EliminatorPageTest, TheFocusGoesToTheFirstRuleOutOfItsRange) {
    eliminatorPage::focusRefused();
    EXPECT_TRUE(desktop.focusedFields.empty());
    page.tick(1, true);
    page.txtEliminator[1] = "6";
    page.tick(4, true);
    page.txtEliminator[4] = "7";
    page.toRules();
    eliminatorPage::focusRefused();
    EXPECT_EQ(desktop.focusedFields, (std::vector<std::string>{"txtEliminator_4"}));
}

TEST_F(EliminatorPageTest, TheListSaysItsNumbers) {
    EXPECT_EQ(eliminatorPage::lblList(), "Aucun numéro dans la liste");
    for (const int n : {30, 7, 12})
        rule(8).eliminNbr(n, eliminator::on);
    EXPECT_EQ(eliminatorPage::lblList(), "7, 12, 30");
    for (int n = 1; n <= 49; ++n)
        rule(8).eliminNbr(n, eliminator::on);
    EXPECT_EQ(eliminatorPage::lblList(),
              "Les 49 numéros : toutes les combinaisons seront éliminées");
}

TEST_F(EliminatorPageTest, RulesThatARefusedFileTookAwayComeBack) {
    page.tick(1, true);
    page.txtEliminator[1] = "5";
    page.toRules();
    EXPECT_EQ(eliminatorPage::lblNoRules(), "");
    testing_support::writeBytes(file("autre.elm"), "pas un fichier");
    for (const char *name : {"autre.elm", "absent.elm"}) {
        desktop.answerOpen(file(name));
        click(eliminatorPage::loadRules);
        EXPECT_EQ(gEliminators->Count(), 0);
        EXPECT_NE(eliminatorPage::lblNoRules(), "");
        EXPECT_EQ(gUndo->undoName(), "Charger");
        gUndo->undo();
        EXPECT_EQ(gEliminators->Count(), 8);
        EXPECT_EQ(rule(2).Value(), 5);
        EXPECT_TRUE(page.ticked(1));
        EXPECT_EQ(page.txtEliminator[1], "5");
    }
}

TEST_F(EliminatorPageTest, ALoadIsAnnouncedAndTakenBack) {
    page.tick(0, true);
    page.txtEliminator[0] = "3";
    desktop.answerSave(file("trois.elm"));
    click(eliminatorPage::saveRules);
    EXPECT_EQ(desktop.saveQuestions.back().name, "eliminateurs.elm");
    page.txtEliminator[0] = "4";
    page.toRules();
    desktop.answerOpen(file("trois.elm"));
    click(eliminatorPage::loadRules);
    EXPECT_EQ(page.txtEliminator[0], "3");
    EXPECT_EQ(desktop.announcements,
              (std::vector<std::string>{"Eliminateurs enregistrés dans trois.elm",
                                        "Eliminateurs chargés de trois.elm"}));
    gUndo->undo();
    EXPECT_EQ(page.txtEliminator[0], "4");
    EXPECT_EQ(rule(1).Value(), 4);
    EXPECT_TRUE(listed().empty());
    gUndo->redo();
    EXPECT_EQ(page.txtEliminator[0], "3");
    EXPECT_EQ(listed().size(), 49U);
}

TEST_F(EliminatorPageTest, AListThatACancelledDialogEmptiedComesBack) {
    for (const int n : {30, 7, 12})
        rule(8).eliminNbr(n, eliminator::on);
    desktop.answerNumbers(NumberScript().cancel());
    page.clickSelectList();
    EXPECT_TRUE(listed().empty());
    gUndo->undo();
    EXPECT_EQ(listed(), (Numbers{7, 12, 30}));
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The rules of the main window: tabs, status, quitting, refills under their handler.

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "sill/modMain.h"
#include "support/boulixTest.h"
#include "workbench/frmMain.h"

#include <limits>

namespace boulix {
namespace {

lotoComb numbers(std::int16_t first) {
    lotoComb comb;
    for (std::int16_t i = 1; i <= lotoComb::size; ++i)
        comb.num(i, static_cast<std::int16_t>(first + i - 1));
    comb.compl_(49);
    return comb;
}

class MainWindow : public BoulixTest, protected frmMainView {
  protected:
    MainWindow() {
        gDbCombs->dbFile().path(folder());
        gDbCombs->dbFile().name("tirages.dbl");
        mainWindow->view(this);
    }
    void refresh() override { ++refreshes; }
    static void addDraw(int day, std::int16_t id) {
        gDbCombs->Add(dateOf({2003, 1, day}), id, numbers(static_cast<std::int16_t>(day)), false,
                      "");
    }

    int refreshes = 0;
};

TEST_F(MainWindow, AStartWithAnEmptyBaseShowsNoRowAndACountOfZero) {
    mainWindow->load();
    EXPECT_EQ(mainWindow->caption, "boulix Version 4.0.3");
    EXPECT_EQ(mainWindow->StatusBar[0], "0 combinaisons dans la base de données");
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 0);
    EXPECT_EQ(mainWindow->database.lblDBCombDesc, "");
}

TEST_F(MainWindow, TheSixTabsStandInTheirOrderWithTheirTips) {
    const std::array<TabText, 6> &tabs = frmMain::tabs;
    EXPECT_STREQ(tabs[0].caption, "Base de données");
    EXPECT_STREQ(tabs[1].caption, "Statistiques");
    EXPECT_STREQ(tabs[2].caption, "Analyse par tirage");
    EXPECT_STREQ(tabs[3].caption, "Eliminateurs");
    EXPECT_STREQ(tabs[4].caption, "Jeux");
    EXPECT_STREQ(tabs[5].caption, "Pronostiques");
    EXPECT_STREQ(tabs[0].toolTip, "Gestion de la base de données des tirages");
    EXPECT_STREQ(tabs[1].toolTip, "Etude statistique des tirages de la base de données");
    EXPECT_STREQ(tabs[2].toolTip, "Analyse des numéros sortis pour un tirage");
    EXPECT_STREQ(tabs[3].toolTip, "Permet de définir les fonctions d'élimination de combinaison");
    EXPECT_STREQ(tabs[4].toolTip, "Edition de jeux et gestion de ces derniers");
    EXPECT_STREQ(tabs[5].toolTip, "Permet de configurer et de tester des méthodes de pronostiques");
}

TEST_F(MainWindow, AClickOnAnotherTabShowsItsPage) {
    mainWindow->load();
    mainWindow->clickTab(5);
    EXPECT_EQ(mainWindow->visiblePage(), 4);
}

TEST_F(MainWindow, AClickOnTheVisibleTabChangesNothing) {
    mainWindow->load();
    const int before = refreshes;
    mainWindow->clickTab(1);
    EXPECT_EQ(mainWindow->visiblePage(), 0);
    EXPECT_EQ(refreshes, before);
}

TEST_F(MainWindow, QuittingAsksFirstAndNoLeavesWindowAndLogOpen) {
    platform.arguments = "-debug";
    modMain::Main();
    desktop.answerNo();
    EXPECT_FALSE(mainWindow->queryClose());
    ASSERT_EQ(desktop.questions.size(), 1U);
    EXPECT_EQ(desktop.questions[0],
              (ShownBox{"Etes-vous sûr de vouloir quitter boulix?", Icon::question, "boulix"}));
    EXPECT_TRUE(modMain::gLogFile.is_open());
    EXPECT_EQ(desktop.otherWindowsUnloaded, 0);
}

TEST_F(MainWindow, QuittingWithYesUnloadsTheOtherWindowsAndClosesTheLog) {
    platform.arguments = "-debug";
    modMain::Main();
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_FALSE(modMain::gLogFile.is_open());
    EXPECT_EQ(desktop.otherWindowsUnloaded, 1);
}

TEST_F(MainWindow, ADocumentThatIsNotHandedOverKeepsTheProgram) {
    platform.arguments = "-debug";
    modMain::Main();
    desktop.answerNo();
    EXPECT_FALSE(mainWindow->queryClose());
    EXPECT_EQ(printers.finishings, 0) << "nobody waits for the documents of a program that stays";
    printers.mayFinish = false;
    desktop.answerYes();
    EXPECT_FALSE(mainWindow->queryClose());
    EXPECT_TRUE(modMain::gLogFile.is_open());
    EXPECT_EQ(desktop.otherWindowsUnloaded, 0);
    printers.mayFinish = true;
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_EQ(printers.finishings, 2);
}

TEST_F(MainWindow, HelpOpensTheHelpFileOfTheApplicationFolderInItsWindow) {
    mainWindow->showHelp();
    ASSERT_EQ(desktop.helpCalls.size(), 1U);
    EXPECT_EQ(desktop.helpCalls[0].target, file("boulix.chm") + ">DefaultWindow");
    EXPECT_FALSE(desktop.helpCalls[0].context.has_value());
}

TEST_F(MainWindow, TheRefillShowsTheLastDrawOnTheBoardThoughNoRowIsSelected) {
    addDraw(2, 1);
    addDraw(3, 2);
    mainWindow->load();
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 2);
    EXPECT_EQ(mainWindow->database.lblDBCombDesc, "Tirage n° 2 du 03-01-2003");
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), 0);
}

TEST_F(MainWindow, ADrawWithoutADateEndsTheRefillWithOneMessageAndKeepsTheRowsBeforeIt) {
    addDraw(2, 1);
    gDbCombs->Add(std::numeric_limits<double>::quiet_NaN(), 1, numbers(5), false, "");
    addDraw(4, 1);
    mainWindow->load();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(
        desktop.messages[0],
        (ShownBox{"Dépassement de capacité\r\nLa date du tirage n° 2 du fichier tirages.dbl est "
                  "illisible.",
                  Icon::critical, "Boulix Erreur système N° 6"}));
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 1);
    EXPECT_EQ(mainWindow->StatusBar[0], "3 combinaisons dans la base de données");
}

} // namespace
} // namespace boulix

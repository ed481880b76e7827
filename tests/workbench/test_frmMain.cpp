// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The rules of the main window: tabs, status, quitting, refills under their handler.

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "sill/modMain.h"
#include "support/boulixTest.h"
#include "support/smallDisk.h"
#include "winnings/rapport.h"
#include "workbench/frmMain.h"

#include <filesystem>
#include <limits>
#include <new>

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
    void goToSide(int side) override { shownSide = side; }
    static void addDraw(int day, std::int16_t id) {
        gDbCombs->Add(dateOf({2003, 1, day}), id, numbers(static_cast<std::int16_t>(day)), false,
                      "");
    }

    int refreshes = 0;
    int shownSide = -1;
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

const ShownChoice unsavedBase = {
    {"La base de données en mémoire n'est pas celle du disque : ses dernières modifications ne "
     "sont pas enregistrées.\r\nSi vous quittez sans enregistrer, elles seront perdues.",
     Icon::question, "boulix"},
    {"Enregistrer et quitter", "Quitter sans enregistrer", "Ne pas quitter"}};
enum Answer { saveAndQuit, quitWithoutSaving, stay };

TEST_F(MainWindow, QuittingWithDrawsThatNoFileHoldsAsksOnceMoreAndStayingKeepsThem) {
    addDraw(2, 1);
    desktop.answerYes();
    desktop.choose(stay);
    EXPECT_FALSE(mainWindow->queryClose());
    EXPECT_EQ(desktop.choices, std::vector<ShownChoice>{unsavedBase});
    EXPECT_EQ(desktop.otherWindowsUnloaded, 0);
    EXPECT_FALSE(fileExists(file("tirages.dbl")));
    desktop.answerNo(); // the first question is enough then
    EXPECT_FALSE(mainWindow->queryClose());
    EXPECT_EQ(desktop.choices.size(), 1U);
}

TEST_F(MainWindow, QuittingWithDrawsThatNoFileHoldsCanSaveThemFirst) {
    addDraw(2, 1);
    addDraw(3, 1);
    desktop.answerYes();
    desktop.choose(saveAndQuit);
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_EQ(readBytes(file("tirages.dbl")).size(), 2U * 128 + 28);
    EXPECT_EQ(desktop.otherWindowsUnloaded, 1);
}

TEST_F(MainWindow, WhereThatSaveFailsTheProgramStaysAndAsksAgainTheNextTime) {
    addDraw(2, 1);
    std::filesystem::create_directory(file("tirages.dbl"));
    desktop.answerYes();
    desktop.choose(saveAndQuit);
    EXPECT_FALSE(mainWindow->queryClose());
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 75");
    EXPECT_EQ(gDbCombs->Count(), 1);
    desktop.answerYes();
    desktop.choose(quitWithoutSaving);
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_EQ(desktop.choices, (std::vector<ShownChoice>{unsavedBase, unsavedBase}));
    EXPECT_TRUE(std::filesystem::is_directory(file("tirages.dbl")));
}

TEST_F(MainWindow, QuittingAfterASaveOrALoadAsksOnlyOnce) {
    gDbCombs->Add(37000, 1, numbers(1), true, "");
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    gDbCombs->load();
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    gDbCombs->Add(37001, 1, numbers(1), false, "");
    gDbCombs->load(); // drops it, as a cancelled import does
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
}

TEST_F(MainWindow, AForeignBaseThatWasRefusedIsNothingToSave) {
    writeBytes(file("tirages.dbl"), std::string(500, 'x'));
    gDbCombs->load();
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_EQ(readBytes(file("tirages.dbl")), std::string(500, 'x'));
}

TEST_F(MainWindow, OnAFullDiskADrawIsKeptTheOldBaseStaysAndTheQuitOffersToSaveAgain) {
    SmallDisk disk(4096);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    gDbCombs->dbFile().path(disk.path());
    for (int i = 0; i < 30; ++i)
        addDraw(1 + i, 1);
    gDbCombs->saveAgain();
    const std::string before = readBytes(disk.file("tirages.dbl"));
    EXPECT_EQ(failureNumber([] { gDbCombs->Add(37000, 1, numbers(1), true, ""); }), 0);
    EXPECT_EQ(failureNumber([] { gDbCombs->Add(37001, 1, numbers(1), true, ""); }), 61);
    EXPECT_EQ(readBytes(disk.file("tirages.dbl")).size(), before.size() + 128);
    desktop.answerYes();
    desktop.choose(saveAndQuit);
    EXPECT_FALSE(mainWindow->queryClose()); // there is no more room than before
    EXPECT_EQ(gDbCombs->Count(), 32);
    gDbCombs->dbFile().path(folder());
    desktop.answerYes();
    desktop.choose(saveAndQuit);
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_EQ(readBytes(file("tirages.dbl")).size(), 32U * 128 + 28);
}

/// A desktop that looks at the log when the other windows go.
class LookingDesktop : public testing_support::ScriptedDesktop {
  public:
    void unloadOtherWindows() override {
        logWasOpen = modMain::gLogFile.is_open();
        ScriptedDesktop::unloadOtherWindows();
    }
    bool logWasOpen = false;
};

TEST_F(MainWindow, QuittingClosesTheLogAfterTheOtherWindows) {
    platform.arguments = "-debug";
    modMain::Main();
    LookingDesktop looking;
    setDesktop(&looking);
    looking.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_TRUE(looking.logWasOpen);
    EXPECT_FALSE(modMain::gLogFile.is_open());
    setDesktop(&desktop);
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

TEST_F(MainWindow, ARefillThatFailsAtItsFirstLogLineLeavesTheListEmptyNotOld) {
    addDraw(2, 1);
    mainWindow->load();
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 1);
    modMain::gDebug = true; // the log is closed, as after a handler
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 0);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Nom ou numéro de fichier incorrect", Icon::critical,
                                      "Boulix Erreur système N° 52"}}));
}

TEST_F(MainWindow, AFailureOfThePagesSetUpEndsThatAloneAndTheLoadGoesOn) {
    /// A page that cannot be shown.
    class BrokenPage : public eliminatorView {
      public:
        void refresh() override { fail(Failure::objectNotSet); }
    };
    BrokenPage broken;
    addDraw(2, 1);
    gRapport->Value(10, 12.5F);
    mainWindow->elimination.view(&broken);
    mainWindow->load();
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Variable objet non définie", Icon::critical, "Boulix Erreur système N° 91"}}));
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 0); // its fill comes after the pages
    EXPECT_EQ(mainWindow->winnings.txtRapPrice[10], "12.5");
    EXPECT_EQ(mainWindow->StatusBar[0], "1 combinaisons dans la base de données");
    mainWindow->elimination.view(nullptr);
}

TEST_F(MainWindow, WithTheLogOnADamagedDateInTheBaseIsToldAndTheMainWindowComesAllTheSame) {
    gDbCombs->Add(std::numeric_limits<double>::quiet_NaN(), 1, numbers(5), true, "");
    gRapport->save(file("defrapp.rap"));
    resetGlobals();
    platform.arguments = "-debug";
    modMain::Main();
    // The refill's handler closes the log, so the next line of the load is a failure in its turn.
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Dépassement de capacité", Icon::critical, "Boulix Erreur système N° 6"},
                  {"Nom ou numéro de fichier incorrect", Icon::critical,
                   "Boulix Erreur système N° 52"}}));
    EXPECT_TRUE(desktop.mainWindowShown);
    EXPECT_FALSE(desktop.splashVisible);
}

TEST_F(MainWindow, AFullMemoryEndsTheLoadLikeAnyOtherFailure) {
    addDraw(2, 1);
    platform.shortForm = [](Date) -> std::string { throw std::bad_alloc(); };
    mainWindow->load();
    ASSERT_FALSE(desktop.messages.empty());
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Mémoire insuffisante", Icon::critical, "Boulix Erreur système N° 7"}));
    EXPECT_EQ(gDbCombs->Count(), 1);
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

TEST_F(MainWindow, TheQuestionOfTheQuitTellsOfAnUnsavedGame) {
    const auto question = [this] {
        desktop.answerNo();
        EXPECT_FALSE(mainWindow->queryClose());
        return desktop.questions.back().text;
    };
    EXPECT_EQ(question(), "Etes-vous sûr de vouloir quitter boulix?");
    currentGame->Add();
    currentGame->Add();
    EXPECT_EQ(question(), "Etes-vous sûr de vouloir quitter boulix?\r\n"
                          "Le jeu en cours n'est pas enregistré : 2 grilles.");
    desktop.answerSave(file("deux.lst"));
    mainWindow->games.clickButton(gamePage::saveGame);
    EXPECT_EQ(question(), "Etes-vous sûr de vouloir quitter boulix?");
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The winnings sub-tabs: verification draw by draw, labels that move, the main window around.

#include "winningsPageTest.h"

namespace boulix {
namespace {

class WinningsPage : public WinningsPageTest {};

// Verification.

TEST_F(WinningsPage, BeginsWithTheLastDrawAndWhatTheGameWinsInIt) {
    EXPECT_EQ(page.updVerifComb.min(), 1);
    EXPECT_EQ(page.updVerifComb.max(), 3);
    EXPECT_EQ(page.updVerifComb.value(), 3);
    EXPECT_EQ(page.txtVerifComb, "3");
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 03-01-2000");
    EXPECT_EQ(page.lblVerifNum, (std::array<std::string, 6>{"1", "2", "3", "44", "45", "46"}));
    EXPECT_EQ(page.lblVerifCompl, "47");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "4.5"));
    EXPECT_EQ(page.lblVerWinTot, "4.5");
}

TEST_F(WinningsPage, AStepShowsAnotherDraw) {
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 2 du 02-01-2000");
    EXPECT_EQ(page.lblVerComb, zeros());
    EXPECT_EQ(page.lblVerWinTot, "0");
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 01-01-2000");
    EXPECT_EQ(page.lblVerifCompl, "7");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
}

TEST_F(WinningsPage, TheTotalIsSummedInSinglePrecision) {
    gRapport->Value(4, 16777216);
    gRapport->Value(6, 1);
    gRapport->Value(8, 1);
    addGrid({1, 2, 3, 44, 12, 13});
    addGrid({1, 2, 3, 44, 45, 13});
    page.showVerification();
    EXPECT_EQ(page.lblVerWinTot, "16777216"); // one and one more are lost, each by itself
}

TEST_F(WinningsPage, ASumIsShownWithTheSevenDigitsThatItCanVouchFor) {
    gRapport->Value(6, 4.2F);
    for (int i = 0; i < 3; ++i)
        addGrid({1, 2, 3, 44, 12, 13});
    page.showVerification();
    EXPECT_EQ(page.lblVerPrice[6], "12.6"); // three times the nearest to 4.2 is 12.599999
}

TEST_F(WinningsPage, OnAnEmptyBaseTheChangeRoutineDoesNothing) {
    gDbCombs->clear();
    page.followBase();
    EXPECT_FALSE(page.updVerifComb.enabled);
    EXPECT_EQ(page.updVerifComb.max(), 3); // the range stays
    page.showVerification();
    page.leaveVerifComb("1");
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 03-01-2000");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(WinningsPage, ANewBaseShowsItsLastDraw) {
    addDraw({11, 12, 13, 24, 25, 26, 27});
    page.followBase();
    EXPECT_EQ(page.updVerifComb.value(), 4);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 04-01-2000");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
    gDbCombs->Item(4).comb(lotoCombOf({41, 42, 43, 44, 45, 46, 47})); // as after a change of it
    page.followBase();
    EXPECT_EQ(page.lblVerComb, zeros());
}

TEST_F(WinningsPage, ATypedPositionIsTakenWhenItExists) {
    page.leaveVerifComb("2");
    EXPECT_EQ(page.updVerifComb.value(), 2);
    for (const char *text : {"0", "4", "-1", "", "deux", "99999999999"}) {
        page.leaveVerifComb(text);
        EXPECT_EQ(page.updVerifComb.value(), 2) << text;
        EXPECT_EQ(page.txtVerifComb, "2") << text;
    }
}

TEST_F(WinningsPage, AChangedGameIsShownWhenTheRoutineRunsAgain) {
    addGrid({1, 2, 3, 44, 45, 46});
    page.showVerification();
    EXPECT_EQ(page.lblVerComb[10], "1");
    EXPECT_EQ(page.lblVerPrice[10], "10.5");
    EXPECT_EQ(page.lblVerWinTot, "15");
}

TEST_F(WinningsPage, AFailureOfTheCheckIsShownAndTheProgramGoesOn) {
    gRapport->Value(4, 3e38F);
    addGrid({1, 2, 3, 21, 22, 23});
    page.updVerifComb.step(-2);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 6");
    page.txtRapPrice[4] = "1";
    page.clickSubTab(winningsPage::report);
    page.showVerification();
    EXPECT_EQ(desktop.messages.size(), 1U);
    page.clickSubTab(winningsPage::verification);
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "2"));
}

// Changing the sub-tab.

TEST_F(WinningsPage, TheLabelsGoToTheFrameThatIsShown) {
    EXPECT_EQ(page.titleFrame(), winningsPage::verification);
    EXPECT_EQ(page.resultFrame(), winningsPage::verification);
    page.clickSubTab(winningsPage::performance);
    EXPECT_EQ(page.titleFrame(), winningsPage::performance);
    EXPECT_EQ(page.resultFrame(), winningsPage::performance);
    page.clickSubTab(winningsPage::report);
    EXPECT_EQ(page.titleFrame(), winningsPage::report);
    EXPECT_EQ(page.resultFrame(), winningsPage::performance);
    page.clickSubTab(3);
    EXPECT_EQ(page.titleFrame(), winningsPage::report);
    page.clickSubTab(winningsPage::verification);
    EXPECT_EQ(page.titleFrame(), winningsPage::verification);
    EXPECT_EQ(page.resultFrame(), winningsPage::verification);
}

TEST_F(WinningsPage, ThePerformanceTabBlanksTheResultsAndTheFirstOneShowsThemAgain) {
    page.clickSubTab(winningsPage::performance);
    EXPECT_EQ(page.lblVerComb, Texts{});
    EXPECT_EQ(page.lblVerPrice, Texts{});
    EXPECT_EQ(page.lblVerWinTot, "");
    page.clickSubTab(winningsPage::verification);
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
    EXPECT_EQ(page.lblVerWinTot, "4.5");
}

TEST_F(WinningsPage, OnThePerformanceTabAnotherDrawBlanksTheResults) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    ASSERT_NE(page.lblVerComb, Texts{});
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerComb, Texts{});
    EXPECT_EQ(page.lblVerPrice, Texts{});
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 2 du 02-01-2000");
}

TEST_F(WinningsPage, OnTheReportTabAnotherDrawLeavesTheResults) {
    page.clickSubTab(winningsPage::report);
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 2 du 02-01-2000");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
}

TEST_F(WinningsPage, NamesTheRanks) {
    EXPECT_EQ(page.lblVerWinTitle[0], "1 numéro");
    EXPECT_EQ(page.lblVerWinTitle[10], "6 numéros");
}

// In the main window.

TEST_F(WinningsPage, TheWindowOpensWithThePrizesAndTheLastDraw) {
    mainWindow->load();
    const winningsPage &shown = mainWindow->winnings;
    EXPECT_EQ(shown.txtRapPrice[4], "4.5");
    EXPECT_EQ(shown.lblVerWinTitle[1], "1 numéro + complémentaire");
    EXPECT_EQ(shown.lblVerifComb, "Tirage n° 1 du 03-01-2000");
    EXPECT_FALSE(shown.cmdPerfDateEnabled());
}

TEST_F(WinningsPage, ARefilledGameIsVerifiedAnew) {
    mainWindow->load();
    addGrid({1, 2, 3, 44, 45, 46});
    mainWindow->games.refill();
    EXPECT_EQ(mainWindow->winnings.lblVerWinTot, "15");
}

TEST_F(WinningsPage, AGameThatTheListDoesNotShowIsCheckedWhole) {
    mainWindow->load();
    mainWindow->games.tickUpdateList(false);
    for (int i = 1; i < 20000; ++i)
        addGrid({1, 2, 3, 11, 12, 13});
    mainWindow->games.refill();
    EXPECT_EQ(mainWindow->games.lvwGame.rowCount(), 0);
    winningsPage &shown = mainWindow->winnings;
    shown.showVerification();
    EXPECT_EQ(shown.lblVerComb, zerosBut(5, "20000"));
    EXPECT_EQ(shown.lblVerPrice, zerosBut(5, "90000"));
    shown.clickSubTab(winningsPage::performance);
    shown.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(shown.lblVerComb, zerosBut(5, "40000"));
}

TEST_F(WinningsPage, AnImportOrDeletionMovesTheVerificationToTheNewLastDraw) {
    gDbCombs->dbFile().path(folder());
    gDbCombs->dbFile().name("tirages.dbl");
    mainWindow->load();
    gDbCombs->Remove(3);
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(mainWindow->winnings.updVerifComb.max(), 2);
    EXPECT_EQ(mainWindow->winnings.lblVerifComb, "Tirage n° 2 du 02-01-2000");
}

} // namespace
} // namespace boulix

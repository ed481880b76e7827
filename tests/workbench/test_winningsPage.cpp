// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The winnings sub-tabs: verification draw by draw, performance, prize table.

#include "workbench/winningsPage.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/frmRandomComb.h"
#include "games/game.h"
#include "support/boulixTest.h"
#include "support/lottery.h"
#include "winnings/rapport.h"
#include "workbench/frmMain.h"
#include "workbench/frmWinDate.h"

#include <functional>
#include <gtest/gtest.h>

namespace boulix {
namespace {

using testing_support::fileExists;

using Texts = winningsPage::RankTexts;

/// Three draws; a game of one grid that has three numbers of the first and of the third one.
class WinningsPage : public BoulixTest, protected winningsView {
  protected:
    WinningsPage() {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({31, 32, 33, 34, 35, 36, 37});
        addDraw({1, 2, 3, 44, 45, 46, 47});
        gDbCombs->Item(2).id(2);
        addGrid({1, 2, 3, 11, 12, 13});
        for (std::int16_t i = 0; i < rapport::size; ++i)
            gRapport->Value(i, static_cast<float>(i) + 0.5F);
        randomDraws.clear();
        page.view(this);
        page.init();
        page.followBase();
        page.showPrizes();
    }
    ~WinningsPage() override { randomDraws.clear(); }
    void refresh() override {
        ++refreshes;
        if (onRefresh)
            onRefresh();
    }
    void runRandomComb(frmRandomComb &dialog) override { onRandomComb(dialog); }
    void runWinDate(frmWinDate &window) override { onWinDate(window); }

    static void addGrid(const gameComb::Numbers &numbers) {
        currentGame->Add(GridRef(gameComb(numbers)));
    }
    static Texts zeros() {
        Texts texts;
        texts.fill("0");
        return texts;
    }
    static Texts zerosBut(int rank, const std::string &text) {
        Texts texts = zeros();
        texts[static_cast<std::size_t>(rank - 1)] = text;
        return texts;
    }
    static std::vector<std::string> row(const frmWinDate &window, std::int64_t index) {
        std::vector<std::string> texts;
        for (int column = 0; column < 10; ++column)
            texts.push_back(window.lvwWinDate.text(index, column));
        return texts;
    }

    winningsPage page;
    std::function<void()> onRefresh;
    std::function<void(frmRandomComb &)> onRandomComb;
    std::function<void(frmWinDate &)> onWinDate = [](frmWinDate &) {};
    int refreshes = 0;
};

// Verification.

TEST_F(WinningsPage, BeginsWithTheLastDrawAndWhatTheGameWinsInIt) {
    EXPECT_EQ(page.updVerifComb.min(), 1);
    EXPECT_EQ(page.updVerifComb.max(), 3);
    EXPECT_EQ(page.updVerifComb.value(), 3);
    EXPECT_EQ(page.txtVerifComb, "3");
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 03/01/2000");
    EXPECT_EQ(page.lblVerifNum, (std::array<std::string, 6>{"1", "2", "3", "44", "45", "46"}));
    EXPECT_EQ(page.lblVerifCompl, "47");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "4.5"));
    EXPECT_EQ(page.lblVerWinTot, "4.5");
}

TEST_F(WinningsPage, AStepShowsAnotherDraw) {
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 2 du 02/01/2000");
    EXPECT_EQ(page.lblVerComb, zeros());
    EXPECT_EQ(page.lblVerWinTot, "0");
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 01/01/2000");
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
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 03/01/2000");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(WinningsPage, ANewBaseShowsItsLastDraw) {
    addDraw({11, 12, 13, 24, 25, 26, 27});
    page.followBase();
    EXPECT_EQ(page.updVerifComb.value(), 4);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 1 du 04/01/2000");
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
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 2 du 02/01/2000");
}

TEST_F(WinningsPage, OnTheReportTabAnotherDrawLeavesTheResults) {
    page.clickSubTab(winningsPage::report);
    page.updVerifComb.step(-1);
    EXPECT_EQ(page.lblVerifComb, "Tirage n° 2 du 02/01/2000");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "1"));
}

TEST_F(WinningsPage, NamesTheRanks) {
    EXPECT_EQ(page.lblVerWinTitle[0], "1 numéro");
    EXPECT_EQ(page.lblVerWinTitle[10], "6 numéros");
}

// The prize table.

TEST_F(WinningsPage, ShowsThePrizesInPlainDecimal) {
    EXPECT_EQ(page.txtRapPrice, (Texts{"0.5", "1.5", "2.5", "3.5", "4.5", "5.5", "6.5", "7.5",
                                       "8.5", "9.5", "10.5"}));
    gRapport->Value(0, 0.1F);
    gRapport->Value(10, 1234567);
    page.showPrizes();
    EXPECT_EQ(page.txtRapPrice[0], "0.1");
    EXPECT_EQ(page.txtRapPrice[10], "1234567");
}

TEST_F(WinningsPage, EachChangeOfTheSubTabTakesTheBoxes) {
    for (const int tab : {1, 2, 3, 0}) {
        page.txtRapPrice[4] = std::to_string(tab) + ",25";
        page.clickSubTab(tab);
        EXPECT_EQ(gRapport->Value(4), static_cast<float>(tab) + 0.25F);
    }
}

TEST_F(WinningsPage, TheAmountsComeIntoForceBehindTheVerificationOfTheFirstTab) {
    page.clickSubTab(winningsPage::report);
    page.txtRapPrice[4] = "100";
    page.clickSubTab(winningsPage::verification);
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "4.5"));
    page.showVerification();
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "100"));
}

TEST_F(WinningsPage, ABlankBoxLeavesTheAmountOfItsRankAsItWas) {
    page.txtRapPrice.fill("");
    page.txtRapPrice[3] = "   ";
    page.txtRapPrice[4] = "7";
    page.clickSubTab(winningsPage::report);
    for (std::int16_t i = 0; i < rapport::size; ++i)
        EXPECT_EQ(gRapport->Value(i), i == 4 ? 7.0F : static_cast<float>(i) + 0.5F);
    page.clickRapp(winningsPage::saveDefault);
    EXPECT_EQ(gRapport->Value(3), 3.5F);
}

TEST_F(WinningsPage, AnAmountIsTakenWithCommaOrDotAndAWordIsZero) {
    page.txtRapPrice = {"1,5", "1.5", "dix", "-2", "1e39", " 3 ", "0", "4 euros", "", "", "-"};
    page.clickSubTab(winningsPage::report);
    const std::array<float, 11> expected = {1.5F, 1.5F, 0, -2, 1, 3, 0, 4, 8.5F, 9.5F, 0};
    for (std::int16_t i = 0; i < rapport::size; ++i)
        EXPECT_EQ(gRapport->Value(i), expected[static_cast<std::size_t>(i)]) << i;
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(WinningsPage, AnAmountBeyondSinglePrecisionIsAnOverflow) {
    page.txtRapPrice[4] = "1" + std::string(39, '0');
    page.clickSubTab(winningsPage::report);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Dépassement de capacité", Icon::critical, "Boulix Erreur système N° 6"}));
    EXPECT_EQ(gRapport->Value(4), 4.5F);
}

TEST_F(WinningsPage, LoadsATableIntoTheBoxes) {
    rapport other;
    other.Value(0, 12.25F);
    other.save(file("gains.rap"));
    desktop.answerOpen(file("gains.rap"));
    page.clickRapp(winningsPage::loadTable);
    EXPECT_EQ(page.txtRapPrice, zerosBut(1, "12.25"));
    EXPECT_EQ(gRapport->Value(0), 12.25F);
}

TEST_F(WinningsPage, ARefusedTableLeavesTheBoxes) {
    page.txtRapPrice[0] = "frais";
    desktop.answerOpen(file("parti.rap"));
    page.clickRapp(winningsPage::loadTable);
    EXPECT_EQ(page.txtRapPrice[0], "frais");
    EXPECT_EQ(desktop.messages.size(), 1U);
    desktop.cancelOpen();
    page.clickRapp(winningsPage::loadTable);
    EXPECT_EQ(page.txtRapPrice[0], "frais");
}

TEST_F(WinningsPage, SavesTheBoxesUnderAChosenName) {
    page.txtRapPrice[0] = "3,5";
    desktop.answerSave(file("gains.rap"));
    page.clickRapp(winningsPage::saveTable);
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Fichier de rapport Boulix (*.rap)|*.rap");
    EXPECT_EQ(desktop.saveQuestions[0].title, "Sauvegarde d'un fichier de rapport");
    rapport saved;
    desktop.answerOpen(file("gains.rap"));
    ASSERT_TRUE(saved.load());
    EXPECT_EQ(saved.Value(0), 3.5F);
    EXPECT_EQ(saved.Value(10), 10.5F);
}

TEST_F(WinningsPage, ACancelledSaveHasTakenTheBoxesAll) {
    page.txtRapPrice[0] = "3";
    desktop.cancelSave();
    page.clickRapp(winningsPage::saveTable);
    EXPECT_EQ(gRapport->Value(0), 3.0F);
}

TEST_F(WinningsPage, SavesTheDefaultTableWithoutAnyQuestion) {
    for (int i = 0; i < 2; ++i) {
        page.txtRapPrice[0] = std::to_string(i);
        page.clickRapp(winningsPage::saveDefault);
    }
    ASSERT_TRUE(fileExists(file("defrapp.rap")));
    EXPECT_EQ(desktop.questions.size(), 0U);
    EXPECT_EQ(desktop.saveQuestions.size(), 0U);
    rapport saved;
    saved.loadDefFile();
    EXPECT_EQ(saved.Value(0), 1.0F);
}

// Performance.

TEST_F(WinningsPage, ChecksTheGameOverTheBase) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "2"));
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "9"));
    EXPECT_TRUE(page.cmdPerfDateEnabled());
}

TEST_F(WinningsPage, ShowsTheDatesOfTheWinsOfARank) {
    page.clickSubTab(winningsPage::performance);
    addGrid({1, 2, 3, 21, 22, 23});
    page.clickPerfo(winningsPage::checkBase);
    int shown = 0;
    onWinDate = [&](frmWinDate &window) {
        ++shown;
        EXPECT_STREQ(frmWinDate::caption, "Date des gains");
        ASSERT_EQ(window.lvwWinDate.rowCount(), 2);
        EXPECT_EQ(row(window, 0), (std::vector<std::string>{"01/01/2000", "1", "1", "2", "3", "4",
                                                            "5", "6", "7", "2"}));
        EXPECT_EQ(row(window, 1), (std::vector<std::string>{"03/01/2000", "1", "1", "2", "3", "44",
                                                            "45", "46", "47", "2"}));
    };
    page.clickPerfDate(4);
    EXPECT_EQ(shown, 1);
    onWinDate = [&](frmWinDate &window) {
        ++shown;
        EXPECT_EQ(window.lvwWinDate.rowCount(), 0);
    };
    page.clickPerfDate(0);
    page.clickPerfDate(10);
    EXPECT_EQ(shown, 3);
}

TEST_F(WinningsPage, TheListOfDatesHasTenColumns) {
    const frmWinDate window({});
    const std::vector<ReportColumn> &columns = window.lvwWinDate.columns();
    const std::vector<std::string> headers = {"Date", "N°",   "0001", "0002", "0003",
                                              "0004", "0005", "0006", "C",    "Gains"};
    ASSERT_EQ(columns.size(), headers.size());
    for (std::size_t i = 0; i < headers.size(); ++i) {
        EXPECT_EQ(columns[i].header, headers[i]);
        const char *sample = i == 0   ? "000000000000"
                             : i == 8 ? "0000000"
                             : i == 9 ? "0000000000"
                                      : "0000";
        EXPECT_EQ(columns[i].sample, sample);
    }
}

TEST_F(WinningsPage, ADateThatLeftTheBaseIsAFailureAndTheWindowStaysClosed) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    gDbCombs->clear();
    onWinDate = [](frmWinDate &) { ADD_FAILURE() << "the window opened"; };
    page.clickPerfDate(4);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
}

TEST_F(WinningsPage, BeforeAnyCheckThereAreNoDates) {
    EXPECT_FALSE(page.cmdPerfDateEnabled());
    onWinDate = [](frmWinDate &) { ADD_FAILURE() << "the window opened"; };
    page.clickPerfDate(4);
}

TEST_F(WinningsPage, ChecksTheGameOverRandomDrawsWhichHaveNoDates) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    onRandomComb = [](frmRandomComb &) {
        randomDraws = {lotoCombOf({1, 2, 3, 4, 5, 6, 11}), lotoCombOf({11, 12, 13, 1, 2, 6, 9})};
    };
    page.clickPerfo(winningsPage::checkRandomDraws);
    Texts expected = zerosBut(6, "1");
    expected[8] = "1";
    EXPECT_EQ(page.lblVerComb, expected);
    EXPECT_EQ(page.lblVerPrice[5], "5.5");
    EXPECT_FALSE(page.cmdPerfDateEnabled());
    onWinDate = [](frmWinDate &) { ADD_FAILURE() << "the window opened"; };
    page.clickPerfDate(4);
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_TRUE(page.cmdPerfDateEnabled());
}

TEST_F(WinningsPage, WithoutRandomDrawsTheResultsAndTheDatesStay) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    onRandomComb = [](frmRandomComb &dialog) { dialog.clickCancel(); };
    page.clickPerfo(winningsPage::checkRandomDraws);
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "2"));
    EXPECT_TRUE(page.cmdPerfDateEnabled());
}

TEST_F(WinningsPage, RandomDrawsFromTheDialogAreChecked) {
    page.clickSubTab(winningsPage::performance);
    onRandomComb = [](frmRandomComb &dialog) {
        dialog.txtnComb = "200";
        dialog.clickCompute();
        dialog.clickOK();
    };
    page.clickPerfo(winningsPage::checkRandomDraws);
    EXPECT_EQ(randomDraws.size(), 200U);
    EXPECT_NE(page.lblVerComb, zeros());
    EXPECT_EQ(page.pgrScanDB.max, 200);
    EXPECT_EQ(page.pgrScanDB.value, 1);
}

TEST_F(WinningsPage, TheQuestionForRandomDrawsIsNoCheckYet) {
    onRandomComb = [this](frmRandomComb &) {
        EXPECT_FALSE(page.busy());
        randomDraws.assign(16, lotoCombOf({1, 2, 3, 4, 5, 6, 11}));
    };
    bool checked = false;
    desktop.onEvents = [&] {
        checked = true;
        EXPECT_TRUE(page.busy());
    };
    page.clickPerfo(winningsPage::checkRandomDraws);
    EXPECT_TRUE(checked);
    EXPECT_FALSE(page.busy());
}

TEST_F(WinningsPage, OnAnEmptyBaseTheCheckGivesZeros) {
    page.clickSubTab(winningsPage::performance);
    gDbCombs->clear();
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblVerComb, zeros());
    onWinDate = [](frmWinDate &window) { EXPECT_EQ(window.lvwWinDate.rowCount(), 0); };
    page.clickPerfDate(4);
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(WinningsPage, DuringACheckTheBarMovesAndNoSecondCommandStarts) {
    std::mt19937 random(1);
    addRandomDraws(60, random);
    std::vector<std::int64_t> bar;
    desktop.onEvents = [&] {
        EXPECT_TRUE(page.busy());
        bar.push_back(page.pgrScanDB.value);
        page.clickPerfo(winningsPage::checkBase);
        page.clickRapp(winningsPage::loadTable);
        page.clickPerfDate(4);
    };
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(bar, (std::vector<std::int64_t>{16, 32, 48}));
    EXPECT_FALSE(page.busy());
    EXPECT_EQ(page.pgrScanDB.value, 1);
}

TEST_F(WinningsPage, ACheckLeftForAnotherSubTabDoesNotWriteIntoItsLabels) {
    std::mt19937 random(1);
    addRandomDraws(20, random);
    page.followBase();
    page.updVerifComb.set(2);
    page.clickSubTab(winningsPage::performance);
    desktop.onEvents = [&] { page.clickSubTab(winningsPage::verification); };
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblVerComb, zeros()); // of the second draw, not of the base
    EXPECT_TRUE(page.cmdPerfDateEnabled());
}

TEST_F(WinningsPage, TheScreenIsToldWhenACheckBeginsAndWhenItHasEnded) {
    std::vector<bool> busy;
    onRefresh = [&] { busy.push_back(page.busy()); };
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(busy, (std::vector<bool>{true, false}));
}

TEST_F(WinningsPage, AFailedCheckLeavesTheResultsAndTheBarAtItsStart) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    addDraw({1, 2, 3, 11, 12, 13, 1}); // a draw that cannot be: six matches with its complementary
    page.clickPerfo(winningsPage::checkBase);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "2"));
    EXPECT_EQ(page.pgrScanDB.value, page.pgrScanDB.min);
    EXPECT_FALSE(page.busy());
}

// In the main window.

TEST_F(WinningsPage, TheWindowOpensWithThePrizesAndTheLastDraw) {
    mainWindow->load();
    const winningsPage &shown = mainWindow->winnings;
    EXPECT_EQ(shown.txtRapPrice[4], "4.5");
    EXPECT_EQ(shown.lblVerWinTitle[1], "1 numéro + complémentaire");
    EXPECT_EQ(shown.lblVerifComb, "Tirage n° 1 du 03/01/2000");
    EXPECT_FALSE(shown.cmdPerfDateEnabled());
}

TEST_F(WinningsPage, ARefilledGameIsVerifiedAnew) {
    mainWindow->load();
    addGrid({1, 2, 3, 44, 45, 46});
    mainWindow->games.refill();
    EXPECT_EQ(mainWindow->winnings.lblVerWinTot, "15");
}

TEST_F(WinningsPage, AnImportOrDeletionMovesTheVerificationToTheNewLastDraw) {
    gDbCombs->dbFile().path(folder());
    gDbCombs->dbFile().name("tirages.dbl");
    mainWindow->load();
    gDbCombs->Remove(3);
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(mainWindow->winnings.updVerifComb.max(), 2);
    EXPECT_EQ(mainWindow->winnings.lblVerifComb, "Tirage n° 2 du 02/01/2000");
}

} // namespace
} // namespace boulix

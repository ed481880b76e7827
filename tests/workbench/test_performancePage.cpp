// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The winnings sub-tab that checks the game over the base or over random draws.

#include "winningsPageTest.h"

#include "printing/gridConfig.h"

namespace boulix {
namespace {

class PerformancePage : public WinningsPageTest {};

TEST_F(PerformancePage, ChecksTheGameOverTheBase) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "2"));
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "9"));
    EXPECT_TRUE(page.cmdPerfDateEnabled());
}

TEST_F(PerformancePage, ShowsTheDatesOfTheWinsOfARank) {
    page.clickSubTab(winningsPage::performance);
    addGrid({1, 2, 3, 21, 22, 23});
    page.clickPerfo(winningsPage::checkBase);
    int shown = 0;
    onWinDate = [&](frmWinDate &window) {
        ++shown;
        EXPECT_STREQ(frmWinDate::caption, "Date des gains");
        ASSERT_EQ(window.lvwWinDate.rowCount(), 2);
        EXPECT_EQ(row(window, 0), (std::vector<std::string>{"01-01-2000", "1", "1", "2", "3", "4",
                                                            "5", "6", "7", "2"}));
        EXPECT_EQ(row(window, 1), (std::vector<std::string>{"03-01-2000", "1", "1", "2", "3", "44",
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

TEST_F(PerformancePage, TheListOfDatesHasTenColumns) {
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

TEST_F(PerformancePage, AfterDrawsHaveGoneThereAreNoDatesRatherThanWrongOnes) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    gDbCombs->clear();
    addDraw({31, 32, 33, 34, 35, 36, 37});
    addDraw({1, 2, 3, 44, 45, 46, 47});
    page.followBase();
    EXPECT_TRUE(page.cmdPerfDateEnabled());
    int opened = 0;
    onWinDate = [&opened](frmWinDate &window) {
        ++opened;
        EXPECT_EQ(window.lvwWinDate.rowCount(), 0);
        EXPECT_EQ(window.lvwWinDate.whenEmpty().sentence,
                  "Des tirages ont changé depuis la vérification : relancez « Tirages de la "
                  "base ».");
    };
    page.clickPerfDate(4);
    page.clickPerfo(winningsPage::checkBase);
    onWinDate = [&opened](frmWinDate &window) {
        ++opened;
        EXPECT_EQ(window.lvwWinDate.rowCount(), 1);
    };
    page.clickPerfDate(4);
    EXPECT_EQ(opened, 2);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(PerformancePage, ADrawThatWasChangedHasNoDateUnderItsOldNumbers) {
    page.clickPerfo(winningsPage::checkBase);
    gDbCombs->Item(3).comb().num(1, 20);
    onWinDate = [](frmWinDate &window) { EXPECT_EQ(window.lvwWinDate.rowCount(), 0); };
    page.clickPerfDate(4);
}

TEST_F(PerformancePage, DrawsThatHaveComeBehindTheOthersLeaveTheDatesRight) {
    page.clickPerfo(winningsPage::checkBase);
    addDraw({1, 2, 3, 4, 5, 6, 7});
    onWinDate = [](frmWinDate &window) { EXPECT_EQ(window.lvwWinDate.rowCount(), 2); };
    page.clickPerfDate(4);
}

TEST_F(PerformancePage, SaysWhatTheGameCostAndWhatIsLeft) {
    gGridConfig->monneyUnit("euro");
    gGridConfig->price(0.6F);
    gRapport->Value(4, 1.5F);
    page.showPrizes();
    addGrid({21, 22, 23, 24, 25, 26});
    page.clickSubTab(winningsPage::performance);
    EXPECT_EQ(page.lblPerfSum, "");
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblPerfSum, "3 euros") << "twice three numbers";
    EXPECT_EQ(page.lblPerfStake, "3,60 euros") << "2 grids in 3 draws at 0.6";
    EXPECT_EQ(page.lblPerfBalance, "−0,60 euro");
    EXPECT_EQ(desktop.announcements.back(), "2 grilles vérifiées sur 3 tirages");
    gRapport->Value(4, 2);
    page.showPrizes();
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblPerfBalance, "+0,40 euro");
    page.clickSubTab(winningsPage::verification);
    page.clickSubTab(winningsPage::performance);
    EXPECT_EQ(page.lblPerfSum + page.lblPerfStake + page.lblPerfBalance, "") << "blank again";
}

TEST_F(PerformancePage, TheCostCountsTheRandomDrawsThatWereChecked) {
    gGridConfig->monneyUnit("euro");
    gGridConfig->price(2);
    page.clickSubTab(winningsPage::performance);
    onRandomComb = [](frmRandomComb &dialog) {
        dialog.txtnComb = "50";
        dialog.clickCompute();
        dialog.clickOK();
    };
    page.clickPerfo(winningsPage::checkRandomDraws);
    EXPECT_EQ(page.lblPerfStake, "100 euros");
}

TEST_F(PerformancePage, BeforeAnyCheckThereAreNoDates) {
    EXPECT_FALSE(page.cmdPerfDateEnabled());
    onWinDate = [](frmWinDate &) { ADD_FAILURE() << "the window opened"; };
    page.clickPerfDate(4);
}

TEST_F(PerformancePage, ChecksTheGameOverRandomDrawsWhichHaveNoDates) {
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

TEST_F(PerformancePage, ChecksTheGameOverASingleRandomDraw) {
    page.clickSubTab(winningsPage::performance);
    onRandomComb = [](frmRandomComb &) { randomDraws = {lotoCombOf({1, 2, 3, 4, 5, 6, 11})}; };
    page.clickPerfo(winningsPage::checkRandomDraws);
    EXPECT_EQ(page.lblVerComb, zerosBut(6, "1"));
    EXPECT_EQ(page.lblVerPrice, zerosBut(6, "5.5"));
}

TEST_F(PerformancePage, WithoutRandomDrawsTheResultsAndTheDatesStay) {
    page.clickSubTab(winningsPage::performance);
    page.clickPerfo(winningsPage::checkBase);
    onRandomComb = [](frmRandomComb &dialog) { dialog.clickCancel(); };
    page.clickPerfo(winningsPage::checkRandomDraws);
    EXPECT_EQ(page.lblVerComb, zerosBut(5, "2"));
    EXPECT_TRUE(page.cmdPerfDateEnabled());
}

TEST_F(PerformancePage, RandomDrawsFromTheDialogAreChecked) {
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

TEST_F(PerformancePage, TheQuestionForRandomDrawsIsNoCheckYet) {
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

TEST_F(PerformancePage, OnAnEmptyBaseTheCheckGivesZeros) {
    page.clickSubTab(winningsPage::performance);
    gDbCombs->clear();
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(page.lblVerComb, zeros());
    onWinDate = [](frmWinDate &window) { EXPECT_EQ(window.lvwWinDate.rowCount(), 0); };
    page.clickPerfDate(4);
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PerformancePage, DuringACheckTheBarMovesAndNoSecondCommandStarts) {
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

TEST_F(PerformancePage, ACheckLeftForAnotherSubTabDoesNotWriteIntoItsLabels) {
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

TEST_F(PerformancePage, TheScreenIsToldWhenACheckBeginsAndWhenItHasEnded) {
    std::vector<bool> busy;
    onRefresh = [&] { busy.push_back(page.busy()); };
    page.clickPerfo(winningsPage::checkBase);
    EXPECT_EQ(busy, (std::vector<bool>{true, false}));
}

TEST_F(PerformancePage, AFailedCheckLeavesTheResultsAndTheBarAtItsStart) {
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

} // namespace
} // namespace boulix

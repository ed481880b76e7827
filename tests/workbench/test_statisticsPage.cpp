// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics page: its types, its study range, its six buttons, its list and its board.

#include "workbench/frmMain.h"
#include "workbench/statisticsPage.h"

#include "core/globals.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "stats/graphSettings.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "support/boulixTest.h"
#include "support/files.h"
#include "support/lottery.h"
#include "support/recordingPrinters.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace boulix {
namespace {

using testing_support::markedNumbers;
using testing_support::readBytes;
using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int16_t>;

constexpr modStats::GraphWindowPos somewhere = {10, 20, 300, 200};

class StatisticsPage : public BoulixTest, protected statisticsView {
  protected:
    StatisticsPage() : page(mainWindow->statistics) {
        modStats::InitStatTypes();
        modStats::InitTripletTable();
        modStats::InitGraphTypes();
        modStats::reset();
        setPrinterSystem(&printers);
        page.view(this);
    }
    ~StatisticsPage() override { setPrinterSystem(nullptr); }

    // The screen.
    std::vector<std::int64_t> selectedRows() const override { return selected; }
    void refresh() override {}
    void openGraph(frmGraph &shown) override {
        graph = &shown;
        ++graphOpened;
    }
    modStats::GraphWindowPos closeGraph() override {
        graph = nullptr;
        return somewhere;
    }

    /// The window as after a start with these draws.
    void startWith(const std::vector<SevenNumbers> &draws) {
        for (const SevenNumbers &numbers : draws)
            addDraw(numbers);
        mainWindow->load();
    }
    void startWithFourDraws() {
        startWith({{1, 2, 3, 4, 5, 6, 7},
                   {1, 2, 3, 14, 15, 16, 17},
                   {21, 22, 23, 24, 25, 26, 7},
                   {1, 2, 13, 14, 25, 36, 47}});
    }
    void startWithDraws(int count) {
        std::mt19937 random(5);
        addRandomDraws(count, random);
        mainWindow->load();
    }
    void compute(std::int16_t type, const Numbers &chosen = {}) {
        page.pickType(type);
        computeAgain(chosen);
    }
    void computeAgain(const Numbers &chosen = {}) {
        if (!chosen.empty())
            desktop.answerNumbers(NumberScript().click(chosen).ok());
        page.clickButton(statisticsPage::computeType);
    }
    void computeDismissed(std::int16_t type) {
        page.pickType(type);
        desktop.answerNumbers(NumberScript().cancel());
        page.clickButton(statisticsPage::computeType);
    }
    void pressCompl(bool down) { page.clickButton(statisticsPage::withComplementary, down); }
    void pressGraph(bool down) { page.clickButton(statisticsPage::showGraph, down); }
    void clickRows(std::vector<std::int64_t> rows) {
        selected = std::move(rows);
        page.clickList();
    }

    Texts headers() const {
        Texts texts;
        for (const ReportColumn &column : page.lvwStatsResult.columns())
            texts.push_back(column.header);
        return texts;
    }
    /// The rows as they are shown, cells joined by blanks.
    Texts rows() const {
        Texts texts;
        for (std::int64_t row = 0; row < page.lvwStatsResult.rowCount(); ++row) {
            std::string text;
            for (std::size_t column = 0; column < headers().size(); ++column)
                text += (column > 0 ? " " : "") +
                        page.lvwStatsResult.text(row, static_cast<int>(column));
            texts.push_back(text);
        }
        return texts;
    }
    std::size_t curvePoints() const {
        return graph && !graph->plot.curves().empty() ? graph->plot.curves().front().x.size() : 0;
    }
    std::string status() const { return mainWindow->StatusBar[1]; }
    Numbers board() const { return markedNumbers(page.grdStatNbrSelector); }

    statisticsPage &page;
    testing_support::RecordingPrinters printers;
    std::vector<std::int64_t> selected;
    frmGraph *graph = nullptr;
    int graphOpened = 0;
};

TEST_F(StatisticsPage, StartsWithTheFirstTypeWithoutComplementaryAndTheWholeBase) {
    startWithFourDraws();
    EXPECT_EQ(page.currentType(), 1);
    EXPECT_EQ(page.graphButton(), 0);
    EXPECT_EQ(page.complementaryChoice(), 0);
    EXPECT_EQ(page.lblStatType, "Fréquence de sortie d'un numéro (Sans complémentaire)");
    EXPECT_EQ(page.lblStatDesc,
              "Calcule le nombre de sorties de chacun des numéros sur la plage de tirages "
              "sélectionnés (Ce calcul ne tient pas compte du numéro complémentaire)");
    EXPECT_EQ(page.updStatStart.value(), 1);
    EXPECT_EQ(page.updStatEnd.value(), 4);
    EXPECT_EQ(page.txtStatStart, "1");
    EXPECT_EQ(page.txtStatEnd, "4");
    EXPECT_EQ(page.lblStatStartDate, "01/01/2000 (1)");
    EXPECT_EQ(page.lblStatEndDate, "04/01/2000 (1)");
    EXPECT_TRUE(page.frameStatsRangeEnabled);
    EXPECT_TRUE(page.graphButtonEnabled);
    EXPECT_EQ(page.lvwStatsResult.rowCount(), 0);
}

TEST_F(StatisticsPage, TheMenuNamesTheSeventeenTypes) {
    for (std::int16_t type = 1; type <= 17; ++type)
        EXPECT_EQ(statisticsPage::menuText(type), modStats::statTypes(type).name);
}

TEST_F(StatisticsPage, ThePressedComplementaryButtonChangesTheLabelsButNotTheList) {
    startWithFourDraws();
    compute(1);
    const Texts before = rows();
    pressCompl(true);
    EXPECT_EQ(page.complementaryChoice(), 1);
    EXPECT_EQ(page.lblStatType, "Fréquence de sortie d'un numéro (Avec complémentaire)");
    EXPECT_EQ(page.lblStatDesc,
              "Calcule le nombre de sorties de chacun des numéros sur la plage de tirages "
              "sélectionnés (Ce calcul tient compte du numéro complémentaire)");
    EXPECT_EQ(rows(), before);
    computeAgain();
    EXPECT_NE(rows(), before);
    pressCompl(false);
    EXPECT_EQ(page.complementaryChoice(), 0);
    EXPECT_EQ(page.lblStatType, "Fréquence de sortie d'un numéro (Sans complémentaire)");
}

TEST_F(StatisticsPage, PickingATypeRewritesTheLabelsAndComputesNothing) {
    startWithFourDraws();
    compute(1);
    pressCompl(true);
    const Texts before = rows();
    page.pickType(9);
    EXPECT_EQ(page.currentType(), 9);
    EXPECT_EQ(page.lblStatType,
              "Nombre maximal de tirages consécutifs sans sortir (Avec complémentaire)");
    EXPECT_EQ(page.lblStatDesc,
              "Calcule le nombre maximum de tirages consécutifs avec sans sortir sur la plage de "
              "tirages sélectionnée pour chacun des numéros (Ce calcul tient compte du numéro "
              "complémentaire)");
    EXPECT_EQ(rows(), before);
}

TEST_F(StatisticsPage, PickingTheCurrentTypeDoesNothing) {
    startWithFourDraws();
    page.lblStatType = "as it was";
    page.lblStatDesc = "as it was";
    page.graphButtonEnabled = false;
    page.pickType(1);
    EXPECT_EQ(page.lblStatType, "as it was");
    EXPECT_EQ(page.lblStatDesc, "as it was");
    EXPECT_FALSE(page.graphButtonEnabled);
}

TEST_F(StatisticsPage, ATypeThatDoesNotExistIsNotPicked) {
    startWithFourDraws();
    for (const std::int16_t type : Numbers{0, 18, -1})
        page.pickType(type);
    EXPECT_EQ(page.currentType(), 1);
}

TEST_F(StatisticsPage, TheRangeBoxAndTheGraphButtonFollowTheType) {
    startWithFourDraws();
    for (std::int16_t type = 17; type >= 1; --type) {
        const bool before = page.frameStatsRangeEnabled;
        page.pickType(type);
        const bool greyed = type == 7 || type == 8;
        EXPECT_EQ(page.frameStatsRangeEnabled, type == 17 ? before : !greyed) << type;
        EXPECT_EQ(page.graphButtonEnabled, type != 11 && type != 12 && type != 17) << type;
    }
    for (const std::int16_t before : Numbers{7, 9}) {
        page.pickType(before);
        page.pickType(17);
        EXPECT_EQ(page.frameStatsRangeEnabled, before == 9) << "left as type " << before;
    }
}

TEST_F(StatisticsPage, AGreyedRangeStillBoundsTheComputation) {
    startWithFourDraws();
    page.updStatEnd.set(2);
    compute(7);
    EXPECT_FALSE(page.frameStatsRangeEnabled);
    EXPECT_EQ(rows().at(0), "01 03");
    EXPECT_EQ(rows().at(24), "25 00") << "drawn after the range only";
}

TEST_F(StatisticsPage, StartAndEndOfTheRangeMeetButNeverCross) {
    startWithDraws(10);
    page.updStatStart.set(4);
    EXPECT_EQ(page.updStatEnd.min(), 4);
    page.updStatEnd.set(1);
    EXPECT_EQ(page.updStatEnd.value(), 4);
    EXPECT_EQ(page.updStatStart.max(), 4);
    page.updStatStart.step(1);
    page.updStatEnd.step(-1);
    EXPECT_EQ(page.updStatStart.value(), 4);
    EXPECT_EQ(page.updStatEnd.value(), 4);
    EXPECT_EQ(page.lblStatStartDate, "04/01/2000 (1)");
    EXPECT_EQ(page.lblStatEndDate, "04/01/2000 (1)");
    const std::vector<Numbers> chosen = {
        {}, {1}, {1, 2}, {1, 2, 3}, {1, 2, 3, 4}, {},        {},           {}, {},
        {}, {},  {1},    {1},       {1, 2},       {1, 2, 3}, {1, 2, 3, 4}, {}};
    for (std::int16_t type = 1; type <= 17; ++type)
        compute(type, chosen[static_cast<std::size_t>(type - 1)]);
    EXPECT_TRUE(desktop.messages.empty()) << "a range of one draw is valid for every type";
}

TEST_F(StatisticsPage, BothDatesAreRewrittenWhicheverControlChanged) {
    startWithDraws(10);
    gDbCombs->Item(1).id(2);
    gDbCombs->Item(9).id(2);
    page.updStatEnd.set(9);
    EXPECT_EQ(page.lblStatStartDate, "01/01/2000 (2)");
    EXPECT_EQ(page.lblStatEndDate, "09/01/2000 (2)");
    EXPECT_EQ(page.txtStatEnd, "9");
}

TEST_F(StatisticsPage, TypedValuesAreBroughtBetweenTheLimits) {
    startWithDraws(10);
    struct Case {
        const char *typed;
        int start;
    };
    for (const Case &c : {Case{"0", 1},
                          {"5", 5},
                          {" 6 ", 6},
                          {"+7", 7},
                          {"-5", 1},
                          {"11", 8},
                          {"32767", 8},
                          {"-32768", 1}}) {
        page.updStatStart.set(3);
        page.updStatEnd.set(8);
        page.leaveStart(c.typed);
        EXPECT_EQ(page.updStatStart.value(), c.start) << c.typed;
        EXPECT_EQ(page.txtStatStart, std::to_string(c.start)) << c.typed;
        EXPECT_EQ(page.updStatEnd.min(), c.start) << c.typed;
    }
    page.updStatStart.set(3);
    page.leaveEnd("1");
    EXPECT_EQ(page.updStatEnd.value(), 3);
    EXPECT_EQ(page.txtStatEnd, "3");
    page.leaveEnd("99");
    EXPECT_EQ(page.updStatEnd.value(), 10);
}

TEST_F(StatisticsPage, TypedTextThatIsNo16BitWholeNumberKeepsTheValueAndIsWrittenOver) {
    startWithDraws(10);
    page.updStatStart.set(3);
    for (const std::string typed : {"99999", "", "abc", "4.5", "4a", "1e1", "32768", "-32769"}) {
        page.leaveStart(typed);
        EXPECT_EQ(page.updStatStart.value(), 3) << typed;
        EXPECT_EQ(page.txtStatStart, "3") << typed;
        page.leaveEnd(typed);
        EXPECT_EQ(page.updStatEnd.value(), 10) << typed;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, TheRangeFollowsTheBase) {
    startWithDraws(10);
    page.updStatStart.set(5);
    page.updStatEnd.set(7);
    addDraw({1, 2, 3, 4, 5, 6, 7});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.updStatStart.value(), 1);
    EXPECT_EQ(page.updStatStart.max(), 11);
    EXPECT_EQ(page.updStatEnd.value(), 11);
    EXPECT_EQ(page.updStatEnd.min(), 1);
    page.updStatStart.set(6);
    gDbCombs->clear();
    addDraw({1, 2, 3, 4, 5, 6, 7});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.updStatStart.value(), 1);
    EXPECT_EQ(page.updStatEnd.value(), 1);
    compute(9);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, AnEmptyBaseDisablesTheRangeAndEveryButtonIsHarmless) {
    startWith({});
    EXPECT_FALSE(page.updStatStart.enabled);
    EXPECT_FALSE(page.updStatEnd.enabled);
    EXPECT_EQ(page.lblStatStartDate, "");
    page.leaveStart("3");
    EXPECT_EQ(page.updStatStart.value(), 0);
    compute(1);
    EXPECT_EQ(page.lblStatsStatus, "Numéro le plus sorti: 49 (0 fois)");
    compute(6);
    EXPECT_EQ(page.lblStatsStatus, "Somme la plus fréquente: 279 (0 fois)");
    pressGraph(true);
    pressGraph(false);
    pressCompl(true);
    page.clickButton(statisticsPage::erase);
    EXPECT_TRUE(desktop.messages.empty());
    compute(8);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
    page.pickType(1);
    desktop.answerSave(file("stat.txt"));
    page.clickButton(statisticsPage::exportResult);
    page.clickButton(statisticsPage::printResult);
    EXPECT_EQ(desktop.messages.size(), 3U) << "there is no draw for the range line";
    EXPECT_FALSE(testing_support::fileExists(file("stat.txt")));
}

TEST_F(StatisticsPage, ABaseThatLostItsLastDrawGivesTheEmptyResults) {
    startWith({{1, 2, 3, 4, 5, 6, 7}});
    gDbCombs->clear();
    mainWindow->frmUpdateDBList();
    EXPECT_FALSE(page.updStatStart.enabled);
    compute(9);
    EXPECT_EQ(page.lblStatsStatus, "Numéro avec le record de retard: 49 (0 tirages)");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, TypeComputesAndShowsTheResult) {
    startWithFourDraws();
    page.updStatStart.set(2);
    pressCompl(true);
    compute(2, {14});
    EXPECT_EQ(headers(), (Texts{"01", "02", "Fréquence"}));
    EXPECT_EQ(rows(), (Texts{"14 01 02", "14 02 02", "14 03 01", "14 13 01", "14 15 01", "14 16 01",
                             "14 25 01", "14 36 01"}));
    EXPECT_EQ(page.lblStatsStatus, "Couple le plus sorti: 14 - 02 (2 fois)");
}

TEST_F(StatisticsPage, ANumberThatNeverCameOutShowsTheColumnsOfTheTypeAndNothingElse) {
    startWithFourDraws();
    compute(1);
    compute(2, {49});
    EXPECT_EQ(headers(), (Texts{"01", "02", "Fréquence"}));
    EXPECT_EQ(rows(), Texts());
    EXPECT_EQ(page.lblStatsStatus, "");
}

TEST_F(StatisticsPage, EvenNumbersShowSevenRowsOrEight) {
    startWithFourDraws();
    compute(17);
    EXPECT_EQ(rows(), (Texts{"00 00", "01 00", "02 00", "03 04", "04 00", "05 00", "06 00"}));
    pressCompl(true);
    computeAgain();
    EXPECT_EQ(rows().size(), 8U);
    EXPECT_EQ(rows().back(), "07 00");
}

TEST_F(StatisticsPage, AHeaderClickSortsByTextAndTheNextResultStandsInComputedOrder) {
    startWithFourDraws();
    compute(1);
    page.clickHeader(1);
    EXPECT_EQ(rows().front(), "07 000");
    EXPECT_EQ(rows().back(), "02 003");
    const Texts sorted = rows();
    page.clickHeader(1);
    EXPECT_EQ(rows(), sorted) << "the same column again changes nothing";
    computeAgain();
    EXPECT_EQ(rows().front(), "01 003");
    EXPECT_EQ(page.lvwStatsResult.sortColumn(), -1);
}

TEST_F(StatisticsPage, AValueThatOutgrowsItsFormatSortsAsText) {
    startWithDraws(20);
    compute(13, {1});
    modStats::nStatPeriods = 3;
    modStats::statPeriods = {0, 100, 20, 3};
    page.ShowStatResult();
    page.clickHeader(1);
    EXPECT_EQ(rows(), (Texts{"03 03", "01 100", "02 20"}));
}

TEST_F(StatisticsPage, ADismissedDialogOfPartnersLeavesTheListEmptyAndTheSentence) {
    startWithFourDraws();
    compute(1);
    const std::string sentence = page.lblStatsStatus;
    for (std::int16_t type = 2; type <= 5; ++type) {
        computeDismissed(type);
        EXPECT_EQ(headers(), Texts());
        EXPECT_EQ(rows(), Texts());
        EXPECT_EQ(page.lblStatsStatus, sentence);
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, ADismissedDialogOfTypeTwelveShowsTheOldFlags) {
    startWithFourDraws();
    compute(12, {49});
    const Texts before = rows();
    desktop.answerNumbers(NumberScript().cancel());
    page.clickButton(statisticsPage::computeType);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(page.lblStatsStatus, "1128 triplets non sortis");
}

TEST_F(StatisticsPage, ADismissedDialogOfPeriodsShowsTheOldOnesAndReportsTheMissingNumbers) {
    startWithFourDraws();
    compute(13, {3});
    computeDismissed(14);
    EXPECT_EQ(rows(), (Texts{"01 02"}));
    EXPECT_EQ(page.lblStatsStatus, "Absence maxi pour le couple (0,0): 2 tirages");
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4301");
    EXPECT_EQ(desktop.messages[0].text,
              "Erreur fatale!!!\r\nImpossible d'accéder au numéro sélectionné 1.\r\nL'index doit "
              "être strictement positif ou inférieur ou égal à 0.\r\nVeuillez contacter le support "
              "technique.");
}

TEST_F(StatisticsPage, ADialogDismissedBeforeAnyResultShowsEmptyPeriods) {
    startWithFourDraws();
    computeDismissed(13);
    EXPECT_EQ(rows(), Texts());
    EXPECT_EQ(page.lblStatsStatus, "Absence maxi pour le numéro 0: 0 tirages");
    EXPECT_EQ(desktop.messages.size(), 1U);
}

TEST_F(StatisticsPage, SelectedRowsJoinTheNumbersOfTheBoard) {
    startWithFourDraws();
    compute(1);
    page.grdStatNbrSelector.click(40);
    EXPECT_EQ(status(), "1 numéro sélectioné");
    clickRows({3, 5, 49});
    EXPECT_EQ(board(), (Numbers{40, 3, 5, 49}));
    EXPECT_EQ(status(), "4 numéros sélectionés");
    clickRows({5});
    EXPECT_EQ(board(), (Numbers{40, 3, 5, 49})) << "a click only ever adds";
}

TEST_F(StatisticsPage, RowsOfPartnersGiveAllTheirNumbers) {
    startWithFourDraws();
    compute(3, {2, 1});
    clickRows({1, 2});
    EXPECT_EQ(board(), (Numbers{2, 1, 3, 4}));
}

TEST_F(StatisticsPage, RowsOfTripletsGiveTheirThreeNumbers) {
    startWithFourDraws();
    compute(12, {49});
    clickRows({2});
    EXPECT_EQ(board(), (Numbers{1, 3, 49}));
}

TEST_F(StatisticsPage, RowsOfSumsPeriodsAndEvenNumbersLeaveTheBoardUnchanged) {
    startWithFourDraws();
    page.grdStatNbrSelector.click(40);
    compute(6);
    clickRows({1, 2});
    compute(13, {3});
    clickRows({1});
    compute(17);
    clickRows({3});
    EXPECT_EQ(board(), (Numbers{40}));
    EXPECT_EQ(status(), "1 numéro sélectioné");
}

TEST_F(StatisticsPage, TheRowsAreTakenAsTheyAreShownAfterASort) {
    startWithFourDraws();
    compute(1);
    page.clickHeader(1);
    clickRows({49});
    EXPECT_EQ(board(), (Numbers{2}));
}

TEST_F(StatisticsPage, RowsOfAnOlderResultAreReadByTheCurrentType) {
    startWithFourDraws();
    compute(6);
    page.pickType(1);
    clickRows({1, 4});
    EXPECT_EQ(board(), (Numbers{21})) << "141 is no number of the board";
}

TEST_F(StatisticsPage, AClickThatFailsKeepsTheBoard) {
    startWithFourDraws();
    page.grdStatNbrSelector.click(40);
    compute(13, {3});
    modStats::statPeriods[1] = 99999;
    page.ShowStatResult();
    page.pickType(11);
    selected = {1};
    EXPECT_EQ(failureNumber([this] { page.clickList(); }), 6);
    EXPECT_EQ(board(), (Numbers{40}));
}

TEST_F(StatisticsPage, EraseClearsTheBoardAndTheCount) {
    startWithFourDraws();
    page.grdStatNbrSelector.click(40);
    page.grdStatNbrSelector.click(41);
    EXPECT_EQ(status(), "2 numéros sélectionés");
    page.clickButton(statisticsPage::erase);
    EXPECT_EQ(board(), Numbers());
    EXPECT_EQ(status(), "0 numéro sélectioné");
}

TEST_F(StatisticsPage, TheGraphButtonShowsTheResultAsItStands) {
    startWithFourDraws();
    compute(1);
    modStats::statResult(1) = 33;
    pressGraph(true);
    ASSERT_NE(graph, nullptr);
    ASSERT_EQ(curvePoints(), 49U);
    EXPECT_EQ(graph->plot.curves().front().x.front(), 1);
    EXPECT_EQ(graph->plot.curves().front().x.back(), 49);
    EXPECT_EQ(graph->plot.curves().front().y.front(), 33) << "nothing is computed";
    EXPECT_EQ(page.graphButton(), 1);
}

TEST_F(StatisticsPage, TheGraphFollowsEachNewResult) {
    startWithFourDraws();
    pressGraph(true);
    EXPECT_EQ(curvePoints(), 0U) << "no list, no curve";
    compute(1);
    EXPECT_EQ(curvePoints(), 49U);
    compute(13, {14});
    EXPECT_EQ(curvePoints(), 2U);
    EXPECT_EQ(graph->plot.curves().size(), 1U);
    compute(2, {49});
    EXPECT_EQ(curvePoints(), 0U) << "an empty list";
}

TEST_F(StatisticsPage, SumsDrawAll322PointsWhateverTheChoice) {
    startWithFourDraws();
    pressGraph(true);
    compute(6);
    EXPECT_EQ(curvePoints(), 322U);
    pressCompl(true);
    computeAgain();
    EXPECT_EQ(curvePoints(), 322U);
    pressCompl(false);
    computeAgain();
    ASSERT_EQ(curvePoints(), 322U);
    EXPECT_EQ(modStats::nStatResult, 279);
}

TEST_F(StatisticsPage, ACurveOfOnePointIsNotDrawn) {
    startWithFourDraws();
    pressGraph(true);
    compute(13, {3});
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(curvePoints(), 0U);
}

TEST_F(StatisticsPage, ATypeWithoutAGraphClosesTheWindowAndTheButtonStaysPressed) {
    startWithFourDraws();
    compute(1);
    pressGraph(true);
    for (const std::int16_t type : Numbers{11, 12, 17}) {
        page.pickType(type);
        EXPECT_EQ(graph, nullptr);
        EXPECT_FALSE(page.graphButtonEnabled);
        EXPECT_EQ(page.graphButton(), 1);
        EXPECT_EQ(modStats::graphWindowPos, somewhere);
        computeAgain(type == 12 ? Numbers{1} : Numbers{});
        EXPECT_EQ(graph, nullptr);
        page.pickType(1);
        EXPECT_TRUE(page.graphButtonEnabled);
        EXPECT_EQ(page.graphButton(), 1);
        EXPECT_EQ(graph, nullptr) << "the next computation opens it again";
        computeAgain();
        EXPECT_EQ(curvePoints(), 49U);
    }
}

TEST_F(StatisticsPage, TheReleasedGraphButtonClosesTheWindowAndRemembersItsPlace) {
    startWithFourDraws();
    compute(1);
    pressGraph(true);
    EXPECT_EQ(modStats::graphWindowPos, modStats::GraphWindowPos{});
    pressGraph(false);
    EXPECT_EQ(graph, nullptr);
    EXPECT_EQ(page.graphButton(), 0);
    EXPECT_EQ(modStats::graphWindowPos, somewhere);
    computeAgain();
    EXPECT_EQ(graph, nullptr);
    pressGraph(true);
    EXPECT_EQ(graphOpened, 2);
    EXPECT_EQ(curvePoints(), 49U) << "the result is still there";
}

TEST_F(StatisticsPage, AGraphWindowThatTheUserClosesReleasesTheButton) {
    startWithFourDraws();
    compute(1);
    pressGraph(true);
    page.graphWindowClosed();
    EXPECT_EQ(page.graphButton(), 0);
    EXPECT_EQ(modStats::graphWindowPos, somewhere);
}

TEST_F(StatisticsPage, ExportComputesAfreshAndLeavesTheListAsItWas) {
    startWithFourDraws();
    compute(1);
    const Texts before = rows();
    page.pickType(13);
    desktop.answerNumbers(NumberScript().click({3}).ok());
    desktop.answerSave(file("stat.txt"));
    page.clickButton(statisticsPage::exportResult);
    EXPECT_EQ(rows(), before);
    EXPECT_NE(fromWestern(readBytes(file("stat.txt")))
                  .find("Absence maxi pour le numéro 3: 2 tirages\r\n"),
              std::string::npos);
    EXPECT_EQ(modStats::nStatPeriods, 1);
}

TEST_F(StatisticsPage, ThePrintedReportStandsUnderTheLabelsOfTheMoment) {
    startWithFourDraws();
    compute(1);
    page.pickType(9);
    page.updStatStart.set(2);
    page.clickButton(statisticsPage::printResult);
    const Texts lines = printers.onlyDocument().lines();
    EXPECT_EQ(lines.at(5),
              "Nombre maximal de tirages consécutifs sans sortir (Sans complémentaire)");
    EXPECT_EQ(lines.at(10), "Analyse réalisée pour du tirage N° 2 (02/01/2000 - 1)  au tirage N° 4 "
                            "(04/01/2000 - 1) ");
    EXPECT_EQ(lines.at(13), "01     03");
}

TEST_F(StatisticsPage, AnExportThatCannotBeWrittenIsShownAndTheProgramLivesOn) {
    startWithFourDraws();
    compute(1);
    desktop.answerSave(file("nowhere/stat.txt"));
    page.clickButton(statisticsPage::exportResult);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title.rfind("Boulix Erreur système N° ", 0), 0U);
    computeAgain();
    EXPECT_EQ(rows().size(), 49U);
}

} // namespace
} // namespace boulix

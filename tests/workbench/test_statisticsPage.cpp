// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics page: its types, its results, its list and its board.

#include "workbench/statisticsPageTest.h"

#include "core/text.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using testing_support::readBytes;

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
    EXPECT_EQ(page.lblStatStartDate, "01-01-2000 (1)");
    EXPECT_EQ(page.lblStatEndDate, "04-01-2000 (1)");
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

TEST_F(StatisticsPage, TheFrequencyOfARowIsNoNumber) {
    startWithFourDraws();
    const Numbers chosen = {21, 22, 23, 24};
    for (std::int16_t type = 2; type <= 5; ++type) {
        const auto partners = static_cast<std::size_t>(type - 1);
        compute(type, {chosen.begin(), chosen.begin() + type - 1});
        ASSERT_EQ(rows().front().substr(rows().front().size() - 3), " 01") << "it came out once";
        clickRows({1});
        Numbers expected = {21, 22, 23, 24, 25};
        expected.resize(partners + 1);
        EXPECT_EQ(board(), expected) << type;
        page.clickButton(statisticsPage::erase);
    }
}

TEST_F(StatisticsPage, ARowOfEveryTypeWithOneNumberGivesThatNumberAlone) {
    startWithFourDraws();
    for (const std::int16_t type : Numbers{1, 7, 8, 9, 10}) {
        compute(type);
        ASSERT_EQ(rows().at(4).substr(0, 3), "05 ") << type;
        clickRows({5, 49});
        EXPECT_EQ(board(), (Numbers{5, 49})) << type;
        page.clickButton(statisticsPage::erase);
    }
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
    EXPECT_EQ(lines.at(10), "Analyse réalisée pour du tirage N° 2 (02-01-2000 - 1)  au tirage N° 4 "
                            "(04-01-2000 - 1) ");
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

TEST_F(StatisticsPage, AResultThatCountsHasBarsWithTheirMean) {
    startWithFourDraws();
    compute(1);
    const reportList &list = page.lvwStatsResult;
    ASSERT_TRUE(list.bars());
    EXPECT_EQ(list.bars()->column, 1);
    EXPECT_EQ(list.bars()->largest, 3);
    EXPECT_DOUBLE_EQ(list.bars()->mean, 24.0 / 49);
    EXPECT_DOUBLE_EQ(list.barOf(0), 1);
    EXPECT_DOUBLE_EQ(list.barOf(2), 2.0 / 3);
    EXPECT_DOUBLE_EQ(list.barOf(48), 0);
    EXPECT_EQ(page.lblStatsNote, "Moyenne de la liste : 0,49 (le trait dans chaque ligne)");
    page.clickHeader(1);
    EXPECT_DOUBLE_EQ(list.barOf(48), 1) << "the bars are sorted with their rows";
    compute(11);
    EXPECT_FALSE(list.bars());
    EXPECT_EQ(page.lblStatsNote, "");
}

TEST_F(StatisticsPage, AResultLooksOutdatedAsSoonAsTheChoiceIsAnotherAndNotBeforeTheFirst) {
    startWithFourDraws();
    const auto outdated = [this] { return page.lvwStatsResult.outdated(); };
    page.pickType(7);
    EXPECT_FALSE(outdated()) << "nothing is there yet";
    compute(1);
    EXPECT_FALSE(outdated());
    page.pickType(3);
    EXPECT_TRUE(outdated());
    page.pickType(1);
    EXPECT_FALSE(outdated());
    pressCompl(true);
    EXPECT_TRUE(outdated());
    pressCompl(false);
    page.leaveEnd("3");
    EXPECT_TRUE(outdated());
    computeAgain();
    EXPECT_FALSE(outdated());
    mainWindow->frmUpdateDBList();
    EXPECT_TRUE(outdated()) << "the base can be another one";
}

TEST_F(StatisticsPage, TheMarkedNumbersGoToTheGamesAsTheirSource) {
    startWithFourDraws();
    page.clickButton(statisticsPage::playNumbers);
    EXPECT_EQ(mainWindow->visiblePage(), 0) << "there are none";
    page.grdStatNbrSelector.click(7);
    page.clickButton(statisticsPage::playNumbers);
    EXPECT_EQ(mainWindow->visiblePage(), 4);
    EXPECT_TRUE(mainWindow->games.design.chkSelect[gameDesign::statisticNumbers]);
    EXPECT_EQ(mainWindow->games.design.currentTab(), gameDesign::selectorsTab);
}

TEST_F(StatisticsPage, AnEmptyListSaysWhatFillsIt) {
    const auto place = [this]() -> const EmptyPlace & { return page.lvwStatsResult.whenEmpty(); };
    startWith({});
    EXPECT_EQ(place().sentence, "La base est vide : importez d'abord des tirages.");
    addDraw({1, 2, 3, 4, 5, 6, 7});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(place().sentence, "Choisissez un type de statistique, puis cliquez sur « Type ».");
    EXPECT_EQ(place().link, "Calculer");
    compute(2, {49});
    EXPECT_EQ(page.lvwStatsResult.rowCount(), 0);
    EXPECT_EQ(place().sentence, "Ce calcul n'a pas de résultat.");
}

TEST_F(StatisticsPage, TheLinkOfTheEmptyListComputes) {
    startWithFourDraws();
    const EmptyPlace place = page.lvwStatsResult.whenEmpty();
    place.follow();
    EXPECT_EQ(page.lvwStatsResult.rowCount(), 49);
}

TEST_F(StatisticsPage, AnExportAndAPrintAreAnnounced) {
    startWithFourDraws();
    desktop.cancelSave();
    page.clickButton(statisticsPage::exportResult);
    EXPECT_TRUE(desktop.announcements.empty());
    desktop.answerSave(file("stat.txt"));
    page.clickButton(statisticsPage::exportResult);
    page.clickButton(statisticsPage::printResult);
    EXPECT_EQ(desktop.announcements,
              (Texts{"Statistique exportée dans stat.txt.",
                     "Document « Fréquence de sortie d'un numéro » remis à l'imprimante Bureau"}));
}

} // namespace
} // namespace boulix

// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The database page: its list, its board, its six buttons.

#include "workbench/databasePageTest.h"

namespace boulix {
namespace {

using testing_support::markedNumbers;

TEST_F(DatabasePage, TheListHasNineColumnsWithTheNumbersCentred) {
    startWith({});
    const std::vector<ReportColumn> &columns = page.lvwDBcomb.columns();
    ASSERT_EQ(columns.size(), 9U);
    const std::vector<std::string> headers = {"Date", "T", "1", "2", "3", "4", "5", "6", "C"};
    for (std::size_t i = 0; i < headers.size(); ++i) {
        EXPECT_EQ(columns[i].header, headers[i]);
        EXPECT_EQ(columns[i].sample, i == 0 ? " 00/00/0000 " : " 000 ");
        EXPECT_EQ(columns[i].centred, i != 0);
    }
}

TEST_F(DatabasePage, ARowShowsTheDrawWithItsNumbersInStoredOrder) {
    startWith({draw(2, 2, sevenA)});
    EXPECT_EQ(row(0), (std::vector<std::string>{"02-01-2003", "2", "31", "15", "33", "27", "36",
                                                "48", "34"}));
}

TEST_F(DatabasePage, AClickOnARowShowsTheDrawOnTheBoardAndClosesTheBoard) {
    startWith({draw(2, 1, sevenA), draw(3, 2, sevenB)});
    page.clickRow(1);
    EXPECT_EQ(markedNumbers(page.grdDB), sevenA);
    EXPECT_TRUE(page.grdDB.isComplementary(34));
    EXPECT_FALSE(page.grdDB.editable());
    EXPECT_EQ(page.lblDBCombDesc, "Tirage n° 1 du 02-01-2003");
    EXPECT_FALSE(page.grdDB.click(10));
    EXPECT_EQ(markedNumbers(page.grdDB), sevenA);
}

TEST_F(DatabasePage, NoRowIsSelectedRightAfterTheStartThoughTheBoardShowsTheLastDraw) {
    startWith({draw(2, 1, sevenA), draw(3, 2, sevenB)});
    EXPECT_EQ(page.getSelectedDraw(), 0);
    EXPECT_EQ(markedNumbers(page.grdDB), sevenB);
}

TEST_F(DatabasePage, ModifyAndRemoveDoNothingWithoutASelectedRow) {
    startWith({draw(2, 1, sevenA)});
    mainWindow->StatusBar[0] = "as it was";
    page.clickButton(databasePage::modifyDraw);
    page.clickButton(databasePage::removeDraw);
    EXPECT_EQ(gDbCombs->Count(), 1);
    EXPECT_EQ(status(), "as it was");
    EXPECT_FALSE(testing_support::fileExists(file("tirages.dbl")));
}

TEST_F(DatabasePage, AddPutsTheDrawAtTheEndAndShowsItOnTheBoard) {
    startWith({draw(9, 1, sevenA)});
    desktop.answerNumbers(NumberScript().click(sevenB).ok());
    desktop.answerDate({dateOf({2003, 1, 4}), 2});
    page.clickButton(databasePage::enterDraw);
    ASSERT_EQ(page.lvwDBcomb.rowCount(), 2);
    EXPECT_EQ(row(1)[0], "04-01-2003");
    EXPECT_EQ(page.lblDBCombDesc, "Tirage n° 2 du 04-01-2003");
    EXPECT_EQ(page.getSelectedDraw(), 0);
    EXPECT_EQ(status(), "2 combinaisons dans la base de données");
}

TEST_F(DatabasePage, RemoveTakesTheFirstSelectedRowAtOnceWithoutAQuestion) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB), draw(4, 1, sevenA)});
    selected = {2, 3};
    page.clickButton(databasePage::removeDraw);
    ASSERT_EQ(page.lvwDBcomb.rowCount(), 2);
    EXPECT_EQ(row(1)[0], "04-01-2003");
    EXPECT_TRUE(desktop.questions.empty());
    EXPECT_EQ(status(), "2 combinaisons dans la base de données");
    EXPECT_TRUE(testing_support::fileExists(file("tirages.dbl")));
}

TEST_F(DatabasePage, ModifyChangesTheSelectedDrawAndSortsTheBase) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB)});
    selected = {1};
    desktop.answerNumbers(NumberScript().clear().click({10, 11, 12, 13, 14, 15, 16}).ok());
    desktop.answerDate({dateOf({2003, 1, 20}), 1});
    page.clickButton(databasePage::modifyDraw);
    EXPECT_EQ(row(0)[0], "03-01-2003");
    EXPECT_EQ(row(1), (std::vector<std::string>{"20-01-2003", "1", "10", "11", "12", "13", "14",
                                                "15", "16"}));
}

TEST_F(DatabasePage, AnImportThatWasDismissedLeavesListAndStatusAlone) {
    startWith({draw(2, 1, sevenA)});
    mainWindow->StatusBar[0] = "as it was";
    desktop.cancelOpen();
    page.clickButton(databasePage::importDraws);
    EXPECT_EQ(status(), "as it was");
}

TEST_F(DatabasePage, AnImportFillsTheListAndTheStatus) {
    startWith({});
    importText("6;5;4;3;2;1;7;20030104;2\r\n1;2;3;4;5;6;8;20030104;1\r\n");
    EXPECT_EQ(page.lvwDBcomb.rowCount(), 2);
    EXPECT_EQ(row(0)[1], "1");
    EXPECT_EQ(page.lblDBCombDesc, "Tirage n° 2 du 04-01-2003");
    EXPECT_EQ(status(), "2 combinaisons dans la base de données");
}

TEST_F(DatabasePage, AnImportThatEndsWithASingleDrawIsAFailureThatGivesTheWindowBack) {
    startWith({});
    importText("6;5;4;3;2;1;7;20030104;2\r\n");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], (ShownBox{"L'indice n'appartient pas à la sélection",
                                             Icon::critical, "Boulix Erreur système N° 9"}));
    EXPECT_TRUE(desktop.mainWindowEnabled());
    EXPECT_EQ(page.lvwDBcomb.rowCount(), 0) << "the list is not filled again";
    EXPECT_EQ(status(), "0 combinaisons dans la base de données");
}

TEST_F(DatabasePage, ModifyFillsListBoardLabelAndUpDownsAgain) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB)});
    page.clickRow(1);
    mainWindow->StatusBar[0] = "old";
    mainWindow->winnings.updVerifComb.set(1);
    mainWindow->statistics.updStatEnd.set(1);
    mainWindow->analysis.updnTirNbr.set(1);
    selected = {2};
    desktop.answerNumbers(NumberScript().clear().click({10, 11, 12, 13, 14, 15, 16}).ok());
    desktop.answerDate({dateOf({2003, 1, 1}), 2});
    page.clickButton(databasePage::modifyDraw);
    EXPECT_EQ(shown(), (std::vector<std::string>{"2 combinaisons dans la base de données",
                                                 "Tirage n° 1 du 02-01-2003",
                                                 "01-01-2003",
                                                 "2",
                                                 "10",
                                                 "11",
                                                 "12",
                                                 "13",
                                                 "14",
                                                 "15",
                                                 "16", //
                                                 "02-01-2003",
                                                 "1",
                                                 "31",
                                                 "15",
                                                 "33",
                                                 "27",
                                                 "36",
                                                 "48",
                                                 "34", //
                                                 "1",
                                                 "2",
                                                 "2",
                                                 "1",
                                                 "2",
                                                 "1",
                                                 "1",
                                                 "2",
                                                 "2",
                                                 "1",
                                                 "2",
                                                 "2", //
                                                 "31",
                                                 "15",
                                                 "33",
                                                 "27",
                                                 "36",
                                                 "48",
                                                 "34"}));
}

TEST_F(DatabasePage, AFailedRemovalOrChangeOrEntryLeavesTheWindowAsItIs) {
    for (const int button :
         {databasePage::removeDraw, databasePage::modifyDraw, databasePage::enterDraw}) {
        gDbCombs->clear();
        startWith({draw(2, 1, sevenA), draw(3, 1, sevenB)});
        page.clickRow(1);
        mainWindow->StatusBar[0] = "as it was";
        mainWindow->statistics.updStatStart.set(2);
        const std::vector<std::string> before = shown();
        loseTheFolder();
        selected = {1};
        if (button != databasePage::removeDraw) {
            desktop.answerNumbers(NumberScript().clear().click({10, 11, 12, 13, 14, 15, 16}).ok());
            desktop.answerDate({dateOf({2003, 1, 20}), 1});
        }
        desktop.messages.clear();
        page.clickButton(button);
        ASSERT_EQ(desktop.messages.size(), 1U) << button;
        EXPECT_EQ(desktop.messages[0].icon, Icon::critical) << button;
        EXPECT_EQ(shown(), before) << button;
    }
}

TEST_F(DatabasePage, AnImportThatFailsInItsLinesOrInItsSaveLeavesTheWindowAsItIs) {
    const std::string earlier = "6;5;4;3;2;1;7;20020104;2\r\n";
    for (const char *second : {"1;2;3\r\n", "1;2;3;4;5;6;7;20020105;1\r\n"}) {
        gDbCombs->clear();
        startWith({draw(2, 1, sevenA), draw(3, 1, sevenB)});
        mainWindow->StatusBar[0] = "as it was";
        const std::vector<std::string> before = shown();
        loseTheFolder();
        desktop.messages.clear();
        importText(earlier + second);
        EXPECT_EQ(desktop.messages.size(), 1U) << second;
        EXPECT_GT(gDbCombs->Count(), 2) << "memory keeps what was read";
        EXPECT_EQ(shown(), before) << second;
        gDbCombs->dbFile().path(folder());
    }
}

TEST_F(DatabasePage, AFailedPrintOrExportLeavesTheStatusAsItIs) {
    startWith(std::vector<dbComb>(1000, draw(2, 1, sevenA)));
    mainWindow->StatusBar[0] = "as it was";
    desktop.answerSave(file("no such folder/base.txt"));
    page.clickButton(databasePage::exportBase);
    printers.breakAtPage = 2;
    page.clickButton(databasePage::printBase);
    EXPECT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(status(), "as it was");
}

TEST_F(DatabasePage, ExportAndPrintSetTheStatusAgain) {
    startWith({draw(2, 1, sevenA)});
    mainWindow->StatusBar[0] = "old";
    desktop.cancelSave();
    page.clickButton(databasePage::exportBase);
    EXPECT_EQ(status(), "1 combinaisons dans la base de données");
    mainWindow->StatusBar[0] = "old";
    page.clickButton(databasePage::printBase);
    EXPECT_TRUE(printers.onlyDocument().ended);
    EXPECT_EQ(status(), "1 combinaisons dans la base de données");
}

} // namespace
} // namespace boulix
